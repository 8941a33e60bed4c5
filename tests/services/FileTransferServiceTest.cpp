#include "services/FileTransferService.h"
#include "services/FileMessage.h"
#include "support/Bytes.h"
#include "support/Files.h"
#include "support/LogCapture.h"

#include <QDir>
#include <QSignalSpy>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kMaxMessage = 100'000;
constexpr qint64 kMaxDownload = kMaxMessage - kDownloadResponseOverhead;
using Type = FileMessageType;

QByteArray content(qint64 size) {
    QByteArray data(size, Qt::Uninitialized);
    for (qsizetype i = 0; i < data.size(); ++i) {
        data[i] = static_cast<char>(i * 31 + i / 251);
    }
    return data;
}

/// Two services that talk to each other: the user's own and the peer's.
class FileTransferServiceTest : public ::testing::Test {
protected:
    bool deliver(FileTransferService& to, const ByteVector& message) {
        EXPECT_LE(static_cast<qint64>(message.size()), kMaxMessage);
        m_types.push_back(static_cast<int>(message.front()));
        if (m_connected) {
            to.handleMessage(message);
        }
        return m_connected;
    }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QString createFile(const QString& name, const QByteArray& data) const {
        writeFile(path(name), data);
        return path(name);
    }

    QStringList errors() const {
        QStringList texts;
        for (const auto& arguments : m_errors) {
            texts.append(arguments[0].toString());
        }
        return texts;
    }

    LogCapture m_log;
    const QTemporaryDir m_folder;
    bool m_connected = true;
    std::vector<int> m_types; ///< of the messages sent, either way
    FileTransferService m_service{[this](const ByteVector& m) { return deliver(m_peer, m); },
                                  kMaxMessage};
    FileTransferService m_peer{[this](const ByteVector& m) { return deliver(m_service, m); },
                               kMaxMessage};
    QSignalSpy m_listed{&m_service, &FileTransferService::directoryListed};
    QSignalSpy m_downloadProgress{&m_service, &FileTransferService::fileDownloadProgress};
    QSignalSpy m_downloaded{&m_service, &FileTransferService::fileDownloadComplete};
    QSignalSpy m_uploadProgress{&m_service, &FileTransferService::fileUploadProgress};
    QSignalSpy m_uploaded{&m_service, &FileTransferService::fileUploadComplete};
    QSignalSpy m_stats{&m_service, &FileTransferService::transferStats};
    QSignalSpy m_errors{&m_service, &FileTransferService::fileError};
};

TEST_F(FileTransferServiceTest, MovesFilesOfAnySizeAndNameEitherWay) {
    for (const qint64 size : {0, 1, 65'535, 65'536, 65'537}) {
        const QByteArray data = content(size);
        const QString source = createFile(u"Übung — 文件 %1 n.txt"_s.arg(size), data);
        const QString uploaded = createFile(u"up loaded %1"_s.arg(size), content(size + 1));
        m_types.clear();
        m_uploadProgress.clear();
        m_service.uploadFile(source, uploaded);
        EXPECT_EQ(m_uploaded.count(), 1);
        EXPECT_TRUE(contentOf(uploaded) == data) << size;
        const qint64 chunks = (size + 65'535) / 65'536;
        EXPECT_EQ(std::ssize(m_types), chunks + 2);
        ASSERT_EQ(m_uploadProgress.count(), chunks);
        if (chunks > 0) {
            EXPECT_EQ(m_uploadProgress.last(), QVariantList({uploaded, 100}));
            EXPECT_EQ(m_stats.last()[0].toLongLong(), size);
        }
        const QString downloaded = path(u"下载 %1"_s.arg(size));
        m_service.requestDownload(source, downloaded);
        EXPECT_TRUE(contentOf(downloaded) == data) << size;
        EXPECT_EQ(m_downloadProgress.takeFirst(), QVariantList({source, 100}));
        EXPECT_EQ(m_downloaded.takeFirst()[0].toString(), downloaded);
        m_uploaded.clear();
    }
    EXPECT_EQ(errors(), QStringList());
}

TEST_F(FileTransferServiceTest, ListsFoldersFirstThenByNameIgnoringCase) {
    const QDir folder(m_folder.path());
    ASSERT_TRUE(folder.mkdir(u"zeta dir"_s) && folder.mkdir(u"Alpha"_s));
    createFile(u"b.txt"_s, "12345");
    createFile(u"A ü.txt"_s, "");
    m_service.requestListing(m_folder.path());
    ASSERT_EQ(m_listed.count(), 1);
    EXPECT_EQ(m_listed[0][0].toString(), m_folder.path());
    const QList<FileEntry> expected{{u"Alpha"_s, true, 0},
                                    {u"zeta dir"_s, true, 0},
                                    {u"A ü.txt"_s, false, 0},
                                    {u"b.txt"_s, false, 5}};
    EXPECT_EQ(m_listed[0][1].value<QList<FileEntry>>(), expected);

    m_service.requestListing(QString());
    const auto volumes = m_listed.last()[1].value<QList<FileEntry>>();
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        EXPECT_EQ(std::ranges::count(volumes, volume.rootPath(), &FileEntry::name), 1);
    }
    EXPECT_EQ(std::ranges::count(volumes, QDir::rootPath(), &FileEntry::name), 1);
    EXPECT_TRUE(std::ranges::all_of(volumes, &FileEntry::isDirectory));
}

TEST_F(FileTransferServiceTest, WhatCannotBeDoneIsToldTheUser) {
    const QString existing = createFile(u"file"_s, content(10));
    const QString missing = path(u"missing 无"_s);
    const QString impossible = existing + u"/below a file"_s;
    const QString unused = path(u"x"_s);
    createFile(u"fits"_s, content(kMaxDownload));
    const QString tooLarge = createFile(u"too large"_s, content(kMaxDownload + 1));
    m_service.requestDownload(path(u"fits"_s), path(u"copy"_s));
    EXPECT_EQ(m_downloaded.count(), 1);

    const std::pair<std::function<void()>, QString> cases[] = {
        {[&] { m_service.requestListing(missing); }, u"Directory does not exist: "_s + missing},
        {[&] { m_service.requestDownload(m_folder.path(), unused); },
         u"Cannot open file: "_s + m_folder.path()},
        {[&] { m_service.requestDownload(tooLarge, unused); },
         u"File is too large to download: "_s + tooLarge},
        {[&] { m_service.requestDownload(existing, impossible); },
         u"Cannot write to local file: "_s + impossible},
        {[&] { m_service.uploadFile(missing, unused); }, u"Cannot open local file: "_s + missing},
        {[&] { m_service.uploadFile(existing, m_folder.path()); },
         u"Cannot write file: "_s + m_folder.path()},
        {[&] { m_service.uploadFile(existing, u"nowhere in particular"_s); },
         u"Cannot write file: nowhere in particular"_s},
    };
    for (const auto& [attempt, error] : cases) {
        m_errors.clear();
        attempt();
        EXPECT_EQ(errors(), QStringList{error});
    }
    EXPECT_FALSE(QFile::exists(unused));
    EXPECT_FALSE(QFile::remove(u"nowhere in particular"_s));
}

TEST_F(FileTransferServiceTest, AnUploadThatIsInterruptedEndsWithAnError) {
    const QString source = createFile(u"source"_s, content(200'000));
    const QString target = path(u"target"_s);
    const auto interruptBy = [&](const std::function<void()>& action, const char* error) {
        m_errors.clear();
        const auto once = QObject::connect(&m_service, &FileTransferService::fileUploadProgress,
                                           [&action] { action(); });
        m_service.uploadFile(source, target);
        QObject::disconnect(once);
        EXPECT_EQ(errors().last(), QLatin1String(error) + source);
        EXPECT_EQ(m_uploaded.count(), 0);
        EXPECT_FALSE(QFile::exists(target));
        m_connected = true;
        m_service.setRoom({});
    };
    interruptBy([&] { m_connected = false; }, "The connection was lost while sending: ");
    interruptBy([&] { QFile::resize(source, 70'000); }, "Cannot read local file: ");

    m_connected = false;
    m_service.requestListing(target);
    EXPECT_EQ(errors().last(), u"The request could not be sent: "_s + target);
}

TEST_F(FileTransferServiceTest, AnUploadWaitsForRoomWhileTheProgramRunsAndCanBeCancelled) {
    const QByteArray data = content(3'000'000); // more than is sent in one go
    const QString source = createFile(u"source"_s, data);
    const QString target = path(u"target"_s);
    bool room = false;
    m_service.setRoom([&room] { return room; });
    m_service.uploadFile(source, target);
    QTest::qWait(20);
    EXPECT_EQ(m_uploadProgress.count(), 0);
    room = true;
    ASSERT_TRUE(m_uploaded.wait());
    EXPECT_TRUE(contentOf(target) == data);

    QFile::remove(target);
    m_service.uploadFile(source, target);
    EXPECT_EQ(m_uploaded.count(), 1) << "it has only begun";
    m_service.cancelUpload();
    m_uploadProgress.clear();
    QTest::qWait(20);
    EXPECT_EQ(m_uploadProgress.count(), 0);
    m_service.uploadFile(source, path(u"other"_s));
    ASSERT_TRUE(m_uploaded.wait()) << "the next one runs";
    EXPECT_FALSE(QFile::exists(target));
    EXPECT_EQ(errors(), QStringList());
}

TEST_F(FileTransferServiceTest, OneUploadRunsAtATimeAndSendsWhatTheFileHeldAtItsStart) {
    const QString source = createFile(u"source"_s, content(70'000));
    const QString target = path(u"target"_s);
    const auto nested = QObject::connect(&m_service, &FileTransferService::fileUploadProgress, [&] {
        m_service.uploadFile(source, path(u"other"_s));
        QFile grown(source);
        ASSERT_TRUE(grown.open(QIODevice::Append));
        grown.write("appended");
    });
    m_service.uploadFile(source, target);
    QObject::disconnect(nested);
    EXPECT_TRUE(contentOf(target) == content(70'000));
    EXPECT_EQ(errors().first(), u"Another upload is still running: "_s + source);
    EXPECT_EQ(m_uploaded.count(), 1);
}

TEST_F(FileTransferServiceTest, BrokenOrUncalledForMessagesCostALogLineEach) {
    const QString target = path(u"target"_s);
    const ByteVector chunk = uploadChunk(0, bytes("data"));
    const ByteVector end = fileTextMessage(Type::UploadEnd, target);
    const std::pair<std::vector<ByteVector>, const char*> cases[] = {
        {{bytes("\x09")}, "unknown sub-type 0x09"},
        {{bytes("\x01\xFF\xFF\xFF\xFFx")}, "malformed message 0x01"},
        {{bytes(QByteArray("\x02\0\0\0\0\1", 6))}, "malformed message 0x02"},
        {{downloadResponse(bytes("x"))}, "dropping a download response that was not asked for"},
        {{bytes(QByteArray("\x05\1\0\0\0xsize", 10))}, "malformed message 0x05"},
        {{chunk, chunk, chunk}, "dropping upload data without an upload"},
        {{end}, "dropping the end of an upload that was not started"},
        {{uploadStart({target, 7}), chunk, chunk, chunk},
         "dropping upload data beyond the announced size"},
        {{bytes("\x08\xFF\xFF\xFF\xFFx")}, "remote error: "},
        {{fileTextMessage(Type::Error, u"two\nlines"_s)}, "remote error: two?lines"},
    };
    m_service.handleMessage({});
    for (const auto& [messages, line] : cases) {
        m_log.clear();
        for (const ByteVector& message : messages) {
            m_service.handleMessage(message);
        }
        EXPECT_TRUE(m_log.once(std::string("warning|FileTransfer: ") + line));
    }
    EXPECT_EQ(m_listed.count() + m_downloaded.count(), 0);
    EXPECT_TRUE(m_types.empty()) << "nothing is answered";
    EXPECT_TRUE(QDir(m_folder.path()).isEmpty()) << "nothing is written";

    m_service.handleMessage(end);
    EXPECT_EQ(contentOf(target), QByteArray("datadat"));
    for (const ByteVector& message : {uploadStart({target, 7}), chunk, end}) {
        m_service.handleMessage(message);
    }
    EXPECT_EQ(contentOf(target), QByteArray("data"));
    EXPECT_TRUE(m_log.once("warning|FileTransfer: upload truncated (4 < 7)"));
}

TEST_F(FileTransferServiceTest, AFileNameOfThePeersForgesNoLogLine) {
    const QString source = path(u"two\nlines"_s);
    if (!QFile(source).open(QIODevice::WriteOnly)) {
        GTEST_SKIP() << "no file can have such a name here";
    }
    m_service.requestListing(source);
    m_service.requestDownload(source, path(u"down\nloaded"_s));
    m_service.uploadFile(source, path(u"up\nloaded"_s));
    ASSERT_EQ(m_downloaded.count() + m_uploaded.count(), 2);
    for (const std::string& line : m_log.lines()) {
        EXPECT_EQ(line.find('\n'), std::string::npos) << line;
    }
}

TEST_F(FileTransferServiceTest, AListingIsReadAsFarAsItGoes) {
    const DirectoryListing listing{u"p"_s, {{u"aé"_s, true, 0}, {u"b"_s, false, ~quint64{0}}}};
    const ByteVector whole = listingResponse(listing);
    ASSERT_EQ(whole.size(), 40U);
    for (size_t size = 1; size <= whole.size(); ++size) {
        m_listed.clear();
        m_service.handleMessage(ByteSpan(whole).first(size));
        const qsizetype expected = size < 26 ? 0 : size < whole.size() ? 1 : 2;
        ASSERT_EQ(m_listed.count(), size < 10 ? 0 : 1) << size;
        if (size >= 10) {
            EXPECT_EQ(m_listed[0][1].value<QList<FileEntry>>(), listing.entries.first(expected));
        }
    }
    ByteVector bomb = whole;
    std::fill_n(bomb.begin() + 6, 4, uint8_t{0xFF});
    m_service.handleMessage(bomb);
    EXPECT_EQ(m_listed.last()[1].value<QList<FileEntry>>(), listing.entries);
}

TEST_F(FileTransferServiceTest, AReplacedDownloadLeavesTheNewOnesContentInTheEnd) {
    const QString target = path(u"target"_s);
    FileTransferService service([](const ByteVector&) { return true; }, kMaxMessage);
    service.requestDownload(u"former"_s, path(u"unused"_s));
    service.requestDownload(u"remote"_s, target);
    for (const char* const answer : {"former", "remote", "uncalled for"}) {
        service.handleMessage(downloadResponse(bytes(answer)));
    }
    EXPECT_EQ(contentOf(target), QByteArray("remote"));
    EXPECT_FALSE(QFile::exists(path(u"unused"_s)));
}

TEST_F(FileTransferServiceTest, ADownloadIsAnsweredOnce) {
    const QString target = path(u"target"_s);
    m_connected = false;
    FileTransferService service({}, kMaxMessage);
    QSignalSpy failed(&service, &FileTransferService::fileError);
    const auto answer = [&](const QByteArray& response) {
        service.requestDownload(u"remote"_s, target);
        service.handleMessage(bytes(response));
        service.handleMessage(downloadResponse(bytes("uncalled for")));
    };
    answer(QByteArray("\4\1", 2));
    EXPECT_EQ(failed.takeFirst()[0].toString(), u"Remote file download failed"_s);
    answer(QByteArray("\x08\x0e\0\0\0refused remote", 19));
    EXPECT_EQ(failed.takeFirst()[0].toString(), u"refused remote"_s);
    EXPECT_FALSE(QFile::exists(target));
    answer(QByteArray("\4\0\x07\0\0\0\0\0\0\x80half", 14));
    EXPECT_EQ(contentOf(target), QByteArray("half"));
    EXPECT_TRUE(m_log.once("warning|FileTransfer: download response truncated (4 < "
                           "9223372036854775815)"));
}

} // namespace
} // namespace corvane::test
