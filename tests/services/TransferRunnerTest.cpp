#include "services/TransferRunner.h"
#include "services/FileMessage.h"
#include "services/FileTransferService.h"
#include "support/Bytes.h"
#include "support/Eventually.h"
#include "support/Files.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <memory>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;
using Type = FileMessageType;

/// A runner in front of a service whose partner answers when the test says so.
class TransferRunnerTest : public ::testing::Test {
protected:
    TransferRunnerTest() {
        QObject::connect(&m_runner, &TransferRunner::statusChanged,
                         [this](const QString& text) { m_said << text; });
        QObject::connect(m_service.get(), &FileTransferService::fileError,
                         [this](const QString& text) { m_said << u"Error: "_s + text; });
        QObject::connect(&m_runner, &TransferRunner::uploadsComplete,
                         [this] { m_said << u"(list again)"_s; });
    }

    /// Keeps requests and the starts of uploads, as "type path".
    bool keep(const ByteVector& message) {
        ByteReader reader(ByteSpan(message).subspan(1));
        if (message[0] != static_cast<uint8_t>(Type::UploadChunk) &&
            message[0] != static_cast<uint8_t>(Type::UploadEnd)) {
            m_sent << QString::number(message[0]) + u' ' + readFileText(reader).value_or(QString());
        }
        return m_isConnected;
    }

    QString local(const QString& name) const { return m_folder.filePath(name); }

    /// A file of the same name on both sides.
    FileTransfer transfer(const QString& name) const { return {u"/r/"_s + name, local(name)}; }

    void answer(const ByteVector& message) {
        m_service->handleMessage(message);
        QCoreApplication::processEvents();
    }
    void refuse(const QString& text) { answer(fileTextMessage(Type::Error, text)); }
    void answerDownload() { answer(downloadResponse(bytes("content"))); }

    QStringList said() { return std::exchange(m_said, {}); }
    QStringList sent() { return std::exchange(m_sent, {}); }

    const LogCapture m_log;
    const QTemporaryDir m_folder;
    bool m_isConnected = true;
    QStringList m_said; ///< statuses and errors
    QStringList m_sent;
    std::unique_ptr<FileTransferService> m_service = std::make_unique<FileTransferService>(
        [this](const ByteVector& message) { return keep(message); }, 100'000);
    TransferRunner m_runner{m_service.get()};
};

TEST_F(TransferRunnerTest, CopiesOneFileAfterAnotherDownloadsFirst) {
    writeFile(local(u"up"_s), "1");
    m_runner.download({transfer(u"a"_s), transfer(u"b"_s)});
    m_runner.upload({transfer(u"up"_s), transfer(u"up"_s)});
    m_runner.download({transfer(u"c"_s)}); // joins the batch
    for (const char* const path : {"a", "b", "c"}) {
        EXPECT_EQ(sent(), QStringList(u"3 /r/"_s + QLatin1String(path)));
        EXPECT_TRUE(m_runner.isRunning());
        answerDownload();
    }
    EXPECT_TRUE(eventually([&] { return !m_runner.isRunning(); }));
    EXPECT_EQ(sent(), QStringList({u"5 /r/up"_s, u"5 /r/up"_s}));
    EXPECT_EQ(said(), QStringList({u"Downloading 1 of 2: a"_s, u"Downloading 1 of 2: a"_s,
                                   u"Downloading 1 of 3: a"_s, u"Downloaded: a — 2 remaining"_s,
                                   u"Downloading 2 of 3: b"_s, u"Downloaded: b — 1 remaining"_s,
                                   u"Downloading 3 of 3: c"_s, u"Downloaded: c — 0 remaining"_s,
                                   u"All downloads complete."_s, u"Uploading 1 of 2: up"_s,
                                   u"Uploading 2 of 2: up"_s, u"All uploads complete."_s,
                                   u"(list again)"_s}));
    EXPECT_EQ(contentOf(local(u"c"_s)), "content");
}

TEST_F(TransferRunnerTest, AnErrorOfATransferEndsBothBatches) {
    const std::pair<std::function<void()>, QString> endings[] = {
        {[&] { refuse(u"no reason"_s); }, u"no reason"_s},
        {[&] { answer(bytes(QByteArray("\4\1", 2))); }, u"Remote file download failed"_s},
        {[&] { m_service->uploadFile(local(u"gone"_s), {}); },
         u"Cannot open local file: "_s + local(u"gone"_s)},
    };
    for (const auto& [end, error] : endings) {
        m_runner.download({transfer(u"a"_s), transfer(u"b"_s)});
        m_runner.upload({transfer(u"up"_s)});
        end();
        EXPECT_FALSE(m_runner.isRunning());
        m_runner.downloadComplete(local(u"a"_s)); // late
        m_runner.uploadComplete();
        QCoreApplication::processEvents();
        EXPECT_EQ(said().last(), u"Error: "_s + error);
        EXPECT_EQ(sent(), QStringList(u"3 /r/a"_s));
    }

    m_isConnected = false;
    m_runner.download({transfer(u"a"_s)}); // a new batch, counted anew
    EXPECT_EQ(said(), QStringList({u"Downloading 1 of 1: a"_s,
                                   u"Error: The request could not be sent: /r/a"_s}));
    EXPECT_FALSE(m_runner.isRunning());
    m_isConnected = true;
    m_runner.download({transfer(u"a"_s)});
    m_service.reset();
    EXPECT_FALSE(m_runner.isRunning());
}

TEST_F(TransferRunnerTest, AFolderThatCannotBeListedLeavesTheBatchesAlone) {
    m_runner.list(u"/r/sub"_s);
    m_runner.list(u"/r"_s);
    m_runner.download({transfer(u"a"_s)});
    m_runner.upload({transfer(u"gone"_s)});
    refuse(u"Directory does not exist: /r/sub"_s);
    EXPECT_TRUE(m_runner.isRunning());
    answer(listingResponse({u"/r"_s, {}}));
    m_isConnected = false;
    m_runner.list({});
    m_isConnected = true;
    EXPECT_TRUE(m_runner.isRunning());
    refuse(u"Directory does not exist: /r"_s); // answered already
    EXPECT_FALSE(m_runner.isRunning());
}

TEST_F(TransferRunnerTest, ARefusedUploadEndsTheUploadsOnly) {
    writeFile(local(u"up"_s), "1");
    m_runner.upload({transfer(u"up"_s), transfer(u"up"_s)});
    m_runner.download({transfer(u"up"_s), transfer(u"b"_s)});
    refuse(u"Cannot write file: /r/up"_s);
    answerDownload();
    answerDownload();
    EXPECT_EQ(sent(), QStringList({u"5 /r/up"_s, u"3 /r/up"_s, u"3 /r/b"_s}));
    EXPECT_EQ(said().last(), u"All downloads complete."_s);
}

} // namespace
} // namespace corvane::test
