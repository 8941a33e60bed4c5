#include "services/RemotePath.h"

#include <gtest/gtest.h>

#include <optional>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

TEST(RemotePath, JoinsAndGoesUpWithEitherSeparator) {
    const std::tuple<QString, QString, std::optional<QString>> cases[] = {
        {u""_s, u"x"_s, std::nullopt},
        {u"/"_s, u"/x"_s, u""_s},
        {u"/home"_s, u"/home/x"_s, u""_s},
        {u"/home/bob"_s, u"/home/bob/x"_s, u"/home"_s},
        {uR"(C:\Users\bob)"_s, uR"(C:\Users\bob/x)"_s, uR"(C:\Users)"_s},
        {u"C:/Users"_s, u"C:/Users/x"_s, u"C:"_s},
        {u"C:"_s, u"C:/x"_s, u""_s},
        {uR"(C:\)"_s, uR"(C:\x)"_s, u""_s},
        {u"C:/Users\\bob/x"_s, u"C:/Users\\bob/x/x"_s, u"C:/Users\\bob"_s},
    };
    for (const auto& [path, joined, parent] : cases) {
        EXPECT_EQ(joinRemotePath(path, u"x"_s), joined);
        EXPECT_EQ(parentRemotePath(path), parent) << path.toStdString();
    }
}

TEST(RemotePath, TakesOnlyNamesThatStayInTheirFolder) {
    for (const QString& name : {u"a"_s, u"..a"_s, u"a b…ü.txt"_s, u"12:30.log"_s, u"..."_s}) {
        EXPECT_TRUE(isPlainFileName(name)) << name.toStdString();
    }
    for (const QString& name : {u""_s, u"."_s, u".."_s, u"/etc/passwd"_s, u"../x"_s, u"a/b"_s,
                                uR"(..\x)"_s, QString(u'a') + QChar(0) + u'b'}) {
        EXPECT_FALSE(isPlainFileName(name)) << name.toStdString();
    }
}

} // namespace
} // namespace corvane
