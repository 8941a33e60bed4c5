#include "SessionTest.h"
#include "services/ChatService.h"
#include "services/ConnectionQualityMonitor.h"
#include "services/FileTransferService.h"
#include "support/Files.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

class SessionServicesTest : public SessionPairTest {
protected:
    void SetUp() override {
        ASSERT_EQ(m_viewer->session->chatService(), nullptr);
        ASSERT_TRUE(connectDevices());
    }

    QString createFile(const QString& name, qint64 size) const {
        writeFile(m_folder.filePath(name), QByteArray(size, 'x'));
        return m_folder.filePath(name);
    }

    const QTemporaryDir m_folder;
};

TEST_F(SessionServicesTest, ChatGoesBothWaysUntilTheSessionEnds) {
    const QPointer<ChatService> viewer = m_viewer->session->chatService();
    const QPointer<ChatService> target = m_target->session->chatService();
    ASSERT_TRUE(viewer && target);
    QSignalSpy atViewer(viewer, &ChatService::messageReceived);
    QSignalSpy atTarget(target, &ChatService::messageReceived);
    viewer->sendMessage(u"Hallo, 世界"_s);
    target->sendMessage(QString());
    ASSERT_TRUE(eventually([&] { return atViewer.count() == 1 && atTarget.count() == 1; }));

    m_viewer->session->endSession(u"user_disconnect"_s);
    EXPECT_EQ(m_viewer->session->chatService(), nullptr);
    ASSERT_TRUE(viewer) << "not destroyed inside a call that may be its own";
    viewer->sendMessage(u"too late"_s);
    EXPECT_TRUE(
        m_log.once("warning|Chat send blocked: state=Closing, cipher=true, transport=false"));
    EXPECT_TRUE(eventually([&] { return !viewer && !target; }));
}

TEST_F(SessionServicesTest, AFileTooLargeForAFrameIsRefusedAndTheLargestIsNot) {
    FileTransferService* const files = m_viewer->session->fileTransferService();
    QSignalSpy downloaded(files, &FileTransferService::fileDownloadComplete);
    QSignalSpy errors(files, &FileTransferService::fileError);
    // A frame of 16 MiB less the seal, the tag, and the head of the response.
    constexpr qint64 kLargest = 16 * 1024 * 1024 - 24 - 1 - 10;
    const QString copy = m_folder.filePath(u"copy"_s);
    files->requestDownload(createFile(u"too large"_s, kLargest + 1), copy);
    ASSERT_TRUE(eventually([&] { return errors.count() == 1; }));

    files->requestDownload(createFile(u"largest"_s, kLargest), copy);
    ASSERT_TRUE(eventually([&] { return downloaded.count() == 1; }));
    EXPECT_EQ(QFile(copy).size(), kLargest);
}

TEST_F(SessionServicesTest, TheMonitorSeesTheTrafficOfItsSide) {
    ConnectionQualityMonitor atTarget;
    ConnectionQualityMonitor atViewer;
    m_target->session->setQualityMonitor(&atTarget);
    m_viewer->session->setQualityMonitor(&atViewer);
    const auto statsOf = [](ConnectionQualityMonitor& monitor) {
        monitor.onUpdateTick();
        return monitor.stats();
    };
    m_viewer->session->chatService()->sendMessage(u"hello"_s);
    EXPECT_TRUE(eventually([&] {
        return statsOf(atViewer).bytesReceived > 1000 && statsOf(atTarget).bytesReceived == 40;
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
