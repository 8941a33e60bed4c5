#include "UploadSpool.h"
#include "Files.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

ByteVector piece(size_t size, size_t seed) {
    ByteVector bytes(size);
    for (size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<uint8_t>(i * 7 + seed);
    }
    return bytes;
}

TEST(UploadSpool, KeepsTheOrderWhereverTheBytesAreKept) {
    constexpr size_t kMemoryLimit = 1000;
    const QTemporaryDir folder;
    for (const size_t total : {0U, 1U, 1000U, 1001U, 5000U}) {
        const QString path = folder.filePath(QString::number(total));
        UploadSpool spool(path, total, kMemoryLimit);
        QByteArray expected;
        for (size_t rest = total; rest > 0;) {
            const ByteVector chunk = piece(std::min<size_t>(rest, 300), rest);
            EXPECT_TRUE(spool.append(chunk));
            expected.append(reinterpret_cast<const char*>(chunk.data()),
                            static_cast<qsizetype>(chunk.size()));
            rest -= chunk.size();
        }
        EXPECT_FALSE(spool.append(piece(1, 0))) << "beyond the announced size";
        EXPECT_EQ(spool.receivedSize(), total);
        EXPECT_FALSE(QFile::exists(path)) << "before it is complete";
        ASSERT_TRUE(spool.commit());
        EXPECT_EQ(contentOf(path), expected);
    }
}

TEST(UploadSpool, AnAbsurdAnnouncementAllocatesLittle) {
    for (const quint64 announced : {quint64{1} << 63, ~quint64{0}}) {
        UploadSpool spool(u"unused"_s, announced);
        EXPECT_TRUE(spool.append(piece(10, 0)));
        EXPECT_EQ(spool.receivedSize(), 10U);
    }
}

TEST(UploadSpool, ReplacesAFileAndNothingElse) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"old file"_s);
    writeFile(path, "a longer old content");
    UploadSpool replacement(path, 3);
    replacement.append(piece(3, 'a'));
    EXPECT_TRUE(replacement.commit());
    EXPECT_EQ(contentOf(path).size(), 3);
    for (const QString& impossible : {folder.path(), path + u"/below a file"_s,
                                      folder.filePath(u"missing/file"_s), QString()}) {
        EXPECT_FALSE(UploadSpool(impossible, 0).commit()) << impossible.toStdString();
    }
}

} // namespace
} // namespace corvane::test
