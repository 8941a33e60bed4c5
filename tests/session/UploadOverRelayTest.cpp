#include "TestPlatform.h"
#include "devserver/RelayNode.h"
#include "services/FileTransferService.h"
#include "session/SessionDataPlane.h"
#include "support/Eventually.h"
#include "support/Files.h"
#include "support/LogCapture.h"
#include "transport/RelayTransport.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

#include <future>
#include <mutex>
#include <queue>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kMebibyte = 1024 * 1024;
constexpr int kTimeoutMs = 60'000;
const QString kSession = u"s"_s;

/// An object that is made, lives and dies on a thread of its own.
template <typename T>
class OnThread {
public:
    explicit OnThread(const std::function<std::unique_ptr<T>()>& make) {
        m_context.moveToThread(&m_thread);
        m_thread.start();
        run([&] { m_object = make(); });
    }
    ~OnThread() {
        run([this] { m_object.reset(); });
        m_thread.quit();
        m_thread.wait();
    }

    T* operator->() { return m_object.get(); }
    T& operator*() { return *m_object; }

    void run(const std::function<void()>& action) {
        std::promise<void> done;
        post([&] {
            action();
            done.set_value();
        });
        done.get_future().wait();
    }
    void post(std::function<void()> action) {
        {
            const std::lock_guard lock(m_mutex);
            m_actions.push(std::move(action));
        }
        QMetaObject::invokeMethod(
            &m_context, [this] { runNext(); }, Qt::QueuedConnection);
    }

private:
    void runNext() {
        std::unique_lock lock(m_mutex);
        const auto action = std::move(m_actions.front());
        m_actions.pop();
        lock.unlock();
        action();
    }

    std::mutex m_mutex; ///< guards the actions: Qt's own locks are hidden from the sanitizer
    std::queue<std::function<void()>> m_actions;
    QThread m_thread;
    QObject m_context;
    std::unique_ptr<T> m_object;
};

/// The user's side on this thread; the relay and the peer on theirs.
class UploadOverRelayTest : public ::testing::Test {
protected:
    void SetUp() override {
        m_relay.run([this] {
            QString error;
            ASSERT_TRUE(m_relay->start(QHostAddress::LocalHost, 0, error)) << error.toStdString();
        });
        join(m_user);
        m_peer.run([this] { join(*m_peer); });
        ASSERT_TRUE(eventually([this] { return joinedPeers() == 2; }, kTimeoutMs));
    }

    void join(RelayTransport& transport) {
        transport.setSessionId(kSession);
        transport.connect("127.0.0.1", m_relay->port());
    }

    int joinedPeers() {
        int joined = 0;
        m_relay.run([&] { joined = m_relay->joinedPeers(kSession); });
        return joined;
    }

    LogCapture m_log;
    OnThread<devserver::RelayNode> m_relay{[] {
        return std::make_unique<devserver::RelayNode>(nullptr);
    }};
    OnThread<RelayTransport> m_peer{[] {
        return std::make_unique<RelayTransport>();
    }};
    RelayTransport m_user;
};

TEST_F(UploadOverRelayTest, TwoPeersThatSendAtOnceDoNotWaitForEachOther) {
    // Together more than all sockets on the way take while nobody reads.
    const auto sendMuch = [](RelayTransport& transport) {
        const ByteVector message(kMebibyte);
        for (int i = 0; i < 64; ++i) {
            ASSERT_TRUE(transport.send(ChannelType::Control, message.data(), message.size()));
            ASSERT_TRUE(transport.waitUntilQueued(kMebibyte));
        }
    };
    m_peer.post([&] { sendMuch(*m_peer); });
    QSignalSpy received(&m_user, &ITransport::dataReceived);
    sendMuch(m_user);
    EXPECT_TRUE(eventually([&] { return received.count() == 64; }, kTimeoutMs));
}

TEST_F(UploadOverRelayTest, AnUploadSurvivesTheEndOfItsConnection) {
    SessionDataPlane plane(SessionRole::Master, testCipher());
    plane.setTransport(&m_user);
    plane.startStreaming({}, createTestPlatform(std::make_shared<Machine>()));
    plane.setState(SessionState::Connected);
    // What the session does when its transport fails, in the middle of a wait for room.
    QObject::connect(&m_user, &ITransport::transportError, [&] {
        plane.setTransport(nullptr);
        m_user.disconnect();
    });
    FileTransferService& files = *plane.fileTransferService();
    QObject::connect(&files, &FileTransferService::fileUploadProgress, [this](auto, int percent) {
        if (percent == 10) {
            m_relay.post([this] { m_relay->inject(kSession, "\x07garbage"); });
        }
    });
    QSignalSpy errors(&files, &FileTransferService::fileError);
    const QTemporaryDir folder;
    const QString source = folder.filePath(u"source"_s);
    writeFile(source, QByteArray(40 * kMebibyte, 'x'));
    files.uploadFile(source, u"target"_s);
    ASSERT_TRUE(eventually([&] { return errors.count() == 1; }, kTimeoutMs));
    EXPECT_EQ(errors[0][0].toString(), u"The connection was lost while sending: "_s + source);
}

} // namespace
} // namespace corvane::test
