#include "ChatService.h"
#include "ConnectionQualityMonitor.h"
#include "FileTransferService.h"
#include "SessionTest.h"

#include <QFile>
#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace corvane::test {
namespace {

class SessionServicesTest : public SessionTest {
protected:
    void connectBoth() {
        m_target = createDevice();
        m_viewer = createDevice();
        ASSERT_EQ(m_viewer->session->chatService(), nullptr);
        ASSERT_TRUE(connectDevices(*m_viewer, *m_target));
    }

    QString createFile(const QString& name, qint64 size) const {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
        return file.fileName();
    }

    const QTemporaryDir m_folder;
    std::unique_ptr<Device> m_target;
    std::unique_ptr<Device> m_viewer;
};

TEST_F(SessionServicesTest, ChatGoesBothWaysUntilTheSessionEnds) {
    connectBoth();
    const QPointer<ChatService> viewer = m_viewer->session->chatService();
    const QPointer<ChatService> target = m_target->session->chatService();
    ASSERT_TRUE(viewer && target);
    QSignalSpy atViewer(viewer, &ChatService::messageReceived);
    QSignalSpy atTarget(target, &ChatService::messageReceived);
    viewer->sendMessage(QStringLiteral("Hallo, 世界"));
    target->sendMessage(QString());
    ASSERT_TRUE(eventually([&] { return atViewer.count() == 1 && atTarget.count() == 1; }));
    EXPECT_EQ(atTarget[0][0].toString(), QStringLiteral("Hallo, 世界"));
    EXPECT_EQ(m_log.count("debug|Chat message sent (35 bytes encrypted)"), 1) << "the empty one";
    EXPECT_EQ(m_log.count("info|Chat message received (11 bytes)"), 1);

    m_viewer->session->endSession(QStringLiteral("user_disconnect"));
    EXPECT_EQ(m_viewer->session->chatService(), nullptr);
    ASSERT_TRUE(viewer) << "not destroyed inside a call that may be its own";
    viewer->sendMessage(QStringLiteral("too late"));
    EXPECT_EQ(m_log.count("warning|Chat send blocked: state=Closing, cipher=true, transport=false"),
              1);
    EXPECT_TRUE(eventually([&] { return !viewer && !target; }));
}

TEST_F(SessionServicesTest, FilesGoBothWaysAndOneTooLargeForAFrameIsRefused) {
    connectBoth();
    FileTransferService* const files = m_viewer->session->fileTransferService();
    QSignalSpy downloaded(files, &FileTransferService::fileDownloadComplete);
    QSignalSpy errors(files, &FileTransferService::fileError);
    // A frame of 16 MiB less the seal, the tag, and the head of the response.
    constexpr qint64 kLargest = 16 * 1024 * 1024 - 24 - 1 - 10;
    const QString tooLarge = createFile(QStringLiteral("файл"), kLargest + 1);
    const QString copy = m_folder.filePath(QStringLiteral("copy"));
    files->requestDownload(tooLarge, copy);
    ASSERT_TRUE(eventually([&] { return errors.count() == 1; }));
    EXPECT_EQ(errors[0][0].toString(),
              QStringLiteral("File is too large to download: ") + tooLarge);

    const QString small = createFile(QStringLiteral("small"), 100'000);
    files->requestDownload(small, copy);
    ASSERT_TRUE(eventually([&] { return downloaded.count() == 1; }));
    EXPECT_EQ(QFile(copy).size(), 100'000);
    const QString uploaded = m_folder.filePath(QStringLiteral("uploaded"));
    m_target->session->fileTransferService()->uploadFile(small, uploaded);
    EXPECT_TRUE(eventually([&] { return QFile(uploaded).size() == 100'000; }));
}

TEST_F(SessionServicesTest, TheMonitorSeesTheTrafficOfItsSide) {
    connectBoth();
    ConnectionQualityMonitor atTarget;
    ConnectionQualityMonitor atViewer;
    m_target->session->setQualityMonitor(&atTarget);
    m_viewer->session->setQualityMonitor(&atViewer);
    const auto statsOf = [](ConnectionQualityMonitor& monitor) {
        monitor.onUpdateTick();
        return monitor.stats();
    };
    m_viewer->session->chatService()->sendMessage(QStringLiteral("hello"));
    EXPECT_TRUE(eventually([&] {
        atTarget.onUpdateTick();
        atViewer.onUpdateTick();
        return atViewer.stats().bytesReceived > 1000 && atTarget.stats().bytesReceived == 40;
    }));
    EXPECT_EQ(statsOf(atViewer).bytesSent, 24 + 1 + 10 + 5);
    EXPECT_TRUE(eventually([&] { return statsOf(atTarget).bytesSent > 1000; }));
    EXPECT_TRUE(eventually([&] { return statsOf(atTarget).fps > 0; }));
    EXPECT_EQ(statsOf(atViewer).framesDropped, 0);
    // A picture that nobody sealed.
    m_server.relay().inject(m_viewer->session->sessionId(),
                            QByteArray("\1\0\0\0\x1e", 5) + QByteArray(30, 'x'));
    EXPECT_TRUE(eventually([&] { return statsOf(atViewer).framesDropped == 1; }));
}

} // namespace
} // namespace corvane::test
