#include "network/updates/UnpackCommand.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(UnpackCommand, CannotBeBrokenOutOf) {
    const Command plain = unpackCommand(u"C:/Temp/CorvaneSetup.zip"_s, u"C:/Temp"_s);
    EXPECT_EQ(plain.program, u"powershell"_s);
    EXPECT_EQ(plain.arguments, (QStringList{u"-NoProfile"_s, u"-Command"_s,
                                            u"Expand-Archive -Path 'C:/Temp/CorvaneSetup.zip' "
                                            "-DestinationPath 'C:/Temp' -Force"_s}));
    EXPECT_EQ(unpackCommand(u"O'Hara%2.zip"_s, u"\u2018a\u2019\u201ab\u201b"_s).arguments.last(),
              u"Expand-Archive -Path 'O''Hara%2.zip' -DestinationPath "
              "'\u2018\u2018a\u2019\u2019\u201a\u201ab\u201b\u201b' -Force"_s);
}

} // namespace
} // namespace corvane
