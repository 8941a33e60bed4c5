#include "services/UploadSpool.h"
#include "support/Files.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

TEST(UploadSpool, KeepsTheOrderWhereverTheBytesAreKept) {
    constexpr size_t kMemoryLimit = 1000;
    const QTemporaryDir folder;
    for (const size_t total : {0U, 1U, 1000U, 1001U, 5000U}) {
        const QString path = folder.filePath(QString::number(total));
        UploadSpool spool(path, total, kMemoryLimit);
        QByteArray expected;
        for (size_t rest = total; rest > 0;) {
            const size_t size = std::min<size_t>(rest, 300);
            EXPECT_TRUE(spool.append(ByteVector(size, static_cast<uint8_t>(rest))));
            expected.append(static_cast<qsizetype>(size), static_cast<char>(rest));
            rest -= size;
        }
        EXPECT_FALSE(spool.append(ByteVector(1))) << "beyond the announced size";
        EXPECT_EQ(spool.receivedSize(), total);
        EXPECT_FALSE(QFile::exists(path)) << "before it is complete";
        ASSERT_TRUE(spool.commit());
        EXPECT_EQ(contentOf(path), expected);
    }
}

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
