#include "TestPlatform.h"
#include "devserver/RelayNode.h"
#include "services/FileTransferService.h"
#include "session/SessionDataPlane.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"
#include "transport/RelayTransport.h"

#include <QCryptographicHash>
#include <QFile>
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

/// One side of a session that has its key and its relay.
struct Peer {
    explicit Peer(quint16 relayPort) {
        transport.setSessionId(kSession);
        QObject::connect(&transport, &ITransport::dataReceived, &plane, &SessionDataPlane::receive);
        transport.connect("127.0.0.1", relayPort);
        plane.setTransport(&transport);
        plane.startStreaming({}, createTestPlatform(std::make_shared<Machine>()));
        plane.setState(SessionState::Connected);
    }

    FileTransferService& files() { return *plane.fileTransferService(); }

    RelayTransport transport;
    SessionDataPlane plane{SessionRole::Master, testCipher()};
};

/// The user's side on this thread, which an upload blocks; the relay and the peer on theirs.
class UploadOverRelayTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(eventually([this] { return joinedPeers(kSession) == 2; }, kTimeoutMs));
    }

    int joinedPeers(const QString& session) {
        int joined = 0;
        m_relay.run([&] { joined = m_relay->joinedPeers(session); });
        return joined;
    }

    static std::unique_ptr<devserver::RelayNode> startRelay() {
        auto relay = std::make_unique<devserver::RelayNode>(nullptr);
        QString error;
        EXPECT_TRUE(relay->start(QHostAddress::LocalHost, 0, error)) << error.toStdString();
        return relay;
    }

    /// A file of that size, most of it holes, that differs from place to place.
    QString createFile(const QString& name, qint64 size) const {
        QFile file(m_folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
        for (qint64 offset = 0; offset + 8 < size; offset += kMebibyte + 13) {
            file.seek(offset);
            file.write(QByteArray::number(offset));
        }
        return file.fileName();
    }

    static QByteArray checksum(const QString& path) {
        QFile file(path);
        QCryptographicHash hash(QCryptographicHash::Sha1);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly) && hash.addData(&file)) << path.toStdString();
        return hash.result();
    }

    LogCapture m_log;
    const QTemporaryDir m_folder;
    OnThread<devserver::RelayNode> m_relay{startRelay};
    const quint16 m_port = m_relay->port();
    OnThread<Peer> m_peer{[this] {
        return std::make_unique<Peer>(m_port);
    }};
    Peer m_user{m_port};
    QSignalSpy m_errors{&m_user.files(), &FileTransferService::fileError};
};

TEST_F(UploadOverRelayTest, AHugeFileArrivesWholeAndWaitsOnDiskNotInTheQueue) {
    const QString source = createFile(u"source"_s, 300 * kMebibyte + 1);
    const QString target = m_folder.filePath(u"target"_s);
    qint64 longestQueue = 0;
    QObject::connect(&m_user.files(), &FileTransferService::fileUploadProgress, [&] {
        longestQueue = std::max(longestQueue, m_user.transport.bytesQueued());
    });
    m_user.files().uploadFile(source, target);
    EXPECT_EQ(m_errors.count(), 0);
    EXPECT_LT(longestQueue, 5 * kMebibyte);
    const std::string received = "received upload -> '" + target.toStdString();
    ASSERT_TRUE(eventually([&] { return m_log.contains(received); }, kTimeoutMs));
    EXPECT_EQ(checksum(source), checksum(target));
}

TEST_F(UploadOverRelayTest, TwoPeersThatSendAtOnceDoNotWaitForEachOther) {
    const QString session = u"two senders"_s;
    const auto join = [&] {
        auto transport = std::make_unique<RelayTransport>();
        transport->setSessionId(session);
        transport->connect("127.0.0.1", m_port);
        return transport;
    };
    OnThread<RelayTransport> peer(join);
    const auto user = join();
    ASSERT_TRUE(eventually([&] { return joinedPeers(session) == 2; }, kTimeoutMs));
    // Together more than all sockets on the way take while nobody reads.
    const auto sendMuch = [](RelayTransport& transport) {
        const ByteVector message(kMebibyte);
        for (int i = 0; i < 64; ++i) {
            ASSERT_TRUE(transport.send(ChannelType::Control, message.data(), message.size()));
            ASSERT_TRUE(transport.waitUntilQueued(kMebibyte));
        }
    };
    peer.post([&] { sendMuch(*peer); });
    QSignalSpy received(user.get(), &ITransport::dataReceived);
    sendMuch(*user);
    EXPECT_TRUE(eventually([&] { return received.count() == 64; }, kTimeoutMs));
}

TEST_F(UploadOverRelayTest, AnUploadSurvivesTheEndOfItsConnection) {
    // What the session does when its transport fails, in the middle of a wait for room.
    QObject::connect(&m_user.transport, &ITransport::transportError, [this] {
        m_user.plane.setTransport(nullptr);
        m_user.transport.disconnect();
    });
    QObject::connect(&m_user.files(), &FileTransferService::fileUploadProgress,
                     [this](auto, int percent) {
                         if (percent == 10) {
                             m_relay.post([this] { m_relay->inject(kSession, "\x07garbage"); });
                         }
                     });
    const QString source = createFile(u"source"_s, 40 * kMebibyte);
    m_user.files().uploadFile(source, m_folder.filePath(u"target"_s));
    ASSERT_EQ(m_errors.count(), 1);
    EXPECT_EQ(m_errors[0][0].toString(), u"The connection was lost while sending: "_s + source);
}

} // namespace
} // namespace corvane::test
