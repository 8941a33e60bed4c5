#include "services/UploadSpool.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

TEST(UploadSpool, AnUploadThatIsGivenUpLeavesNothing) {
    const QTemporaryDir folder;
    {
        UploadSpool spool(folder.filePath(u"file"_s), 5000, 1000);
        EXPECT_TRUE(spool.append(ByteVector(2000)));
    }
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST(UploadSpool, AnAbsurdAnnouncementAllocatesLittle) {
    for (const quint64 announced : {quint64{1} << 63, ~quint64{0}}) {
        UploadSpool spool(u"unused"_s, announced);
        EXPECT_TRUE(spool.append(ByteVector(10)));
        EXPECT_EQ(spool.receivedSize(), 10U);
    }
}

} // namespace
} // namespace corvane::test
