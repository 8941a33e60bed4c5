#include "LogCapture.h"
#include "P2PTransport.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace corvane {
namespace {

using Messages = std::vector<std::pair<ChannelType, QByteArray>>;

constexpr int kPatienceMs = 100'000;

QByteArray randomBytes(size_t size) {
    std::minstd_rand random(static_cast<unsigned>(size));
    QByteArray bytes(static_cast<qsizetype>(size), Qt::Uninitialized);
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random() >> 8); });
    return bytes;
}

bool send(ITransport& transport, ChannelType channel, const QByteArray& bytes) {
    return transport.send(channel, reinterpret_cast<const uint8_t*>(bytes.constData()),
                          static_cast<size_t>(bytes.size()));
}

/// Carries descriptions and candidates of one side to the other, as signaling does.
void carry(const P2PTransport& from, P2PTransport& to) {
    QObject::connect(
        &from, &IPeerTransport::localDescriptionReady, &to,
        [&to](const QString& type, const QString& sdp) { to.setRemoteDescription(sdp, type); });
    QObject::connect(&from, &IPeerTransport::localCandidateReady, &to,
                     &IPeerTransport::addRemoteCandidate);
}

/// Two real transports in one process, over loopback or whatever the machine has.
class PeerLoopbackTest : public ::testing::Test {
protected:
    PeerLoopbackTest() {
        for (P2PTransport* peer : {offerer.get(), answerer.get()}) {
            QObject::connect(peer, &ITransport::dataReceived, peer,
                             [this, peer](ChannelType channel, const QByteArray& bytes) {
                                 auto& inbox = peer == offerer.get() ? atOfferer : atAnswerer;
                                 inbox.emplace_back(channel, bytes);
                             });
        }
    }

    void introduce() {
        carry(*offerer, *answerer);
        carry(*answerer, *offerer);
    }

    void connectPeers() {
        introduce();
        answerer->startAsAnswerer();
        ASSERT_TRUE(offerer->connect({}, 0));
        ASSERT_TRUE(QTest::qWaitFor(
            [this] { return offerer->isConnected() && answerer->isConnected(); }, kPatienceMs));
    }

    static bool arrives(const Messages& inbox, size_t count) {
        return QTest::qWaitFor([&] { return inbox.size() >= count; }, kPatienceMs);
    }

    test::LogCapture log;
    std::unique_ptr<P2PTransport> offerer = std::make_unique<P2PTransport>();
    std::unique_ptr<P2PTransport> answerer = std::make_unique<P2PTransport>();
    Messages atOfferer;
    Messages atAnswerer;
};

TEST_F(PeerLoopbackTest, MessagesOfAnySizeArriveWholeAndInOrderBothWays) {
    connectPeers();
    const size_t sizes[] = {
        1, 1200, 65'535, 65'536, 262'145, 2'000'000, P2PTransport::kMaxMessageSize};
    Messages sent;
    for (const size_t size : sizes) {
        sent.emplace_back(ChannelType::Control, randomBytes(size));
        for (P2PTransport* peer : {offerer.get(), answerer.get()}) {
            ASSERT_TRUE(send(*peer, ChannelType::Control, sent.back().second)) << size;
        }
    }
    for (const Messages* inbox : {&atOfferer, &atAnswerer}) {
        ASSERT_TRUE(arrives(*inbox, sent.size()))
            << atOfferer.size() << " and " << atAnswerer.size() << " arrived, "
            << offerer->bytesQueued() << " and " << answerer->bytesQueued() << " bytes queued";
        EXPECT_TRUE(*inbox == sent);
    }
    for (P2PTransport* peer : {offerer.get(), answerer.get()}) {
        EXPECT_FALSE(send(*peer, ChannelType::Control, QByteArray(sent.back().second + 'x')));
        EXPECT_TRUE(peer->roundTripMilliseconds().has_value());
    }
}

TEST_F(PeerLoopbackTest, FramesArriveWhole) {
    connectPeers();
    for (const size_t size : {1, 1200, 100'000, 2'000'000}) {
        const QByteArray frame = randomBytes(size);
        // Nothing is sent twice on this channel, and even loopback may drop a datagram.
        bool whole = false;
        for (int attempt = 0; attempt < 20 && !whole; ++attempt) {
            ASSERT_TRUE(offerer->waitUntilQueued(0));
            ASSERT_TRUE(send(*offerer, ChannelType::Video, frame));
            whole = QTest::qWaitFor([this] { return !atAnswerer.empty(); }, 1000);
        }
        ASSERT_TRUE(whole) << size;
        EXPECT_EQ(atAnswerer.front().first, ChannelType::Video);
        EXPECT_TRUE(atAnswerer.front().second == frame) << size;
        atAnswerer.clear();
    }
}

TEST_F(PeerLoopbackTest, AWaitingSenderLetsTheQueueDrain) {
    connectPeers();
    const QByteArray message = randomBytes(4 * 1024 * 1024);
    constexpr int kMessages = 7;
    for (int i = 0; i < kMessages; ++i) {
        for (P2PTransport* peer : {offerer.get(), answerer.get()}) {
            ASSERT_TRUE(send(*peer, ChannelType::Control, message));
        }
    }
    EXPECT_GT(offerer->bytesQueued(), message.size());
    EXPECT_TRUE(offerer->waitUntilQueued(message.size()));
    EXPECT_LE(offerer->bytesQueued(), message.size());
    EXPECT_TRUE(arrives(atOfferer, kMessages));
    EXPECT_TRUE(arrives(atAnswerer, kMessages));
}

TEST_F(PeerLoopbackTest, TheOtherSideNoticesTheEndOnce) {
    for (const bool destroy : {false, true}) {
        connectPeers();
        const QSignalSpy lost(answerer.get(), &ITransport::disconnected);
        const QSignalSpy own(offerer.get(), &ITransport::disconnected);
        destroy ? offerer.reset() : offerer->disconnect();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !lost.isEmpty(); }, kPatienceMs));
        EXPECT_FALSE(answerer->isConnected());
        EXPECT_FALSE(send(*answerer, ChannelType::Control, "x"));
        EXPECT_EQ(own.count(), 0);
        answerer->disconnect();
        EXPECT_EQ(lost.count(), 1);
    }
}

TEST_F(PeerLoopbackTest, DestructionAtAnyMomentIsQuiet) {
    // A little later each time, so that it meets every step of the connecting.
    for (size_t steps = 0; steps < 32; steps += 3) {
        offerer = std::make_unique<P2PTransport>();
        answerer = std::make_unique<P2PTransport>();
        introduce();
        log.clear();
        answerer->startAsAnswerer();
        offerer->connect({}, 0);
        (void)QTest::qWaitFor(
            [&] {
                return log.lines().size() >= steps ||
                       (offerer->isConnected() && answerer->isConnected());
            },
            2000);
        send(*answerer, ChannelType::Video, randomBytes(500'000));
        offerer.reset();
        answerer.reset();
    }
    EXPECT_FALSE(log.contains("cannot start"));
}

TEST_F(PeerLoopbackTest, GarbageFromTheOtherSideIsRefusedAndTheRightAnswerStillConnects) {
    const QString garbage[] = {QString(),
                               u"v=0"_qs,
                               u"\0\xff"_qs,
                               QString(1'000'000, u'a'),
                               u"v=0\r\nm=application 9 UDP/DTLS/SCTP webrtc-datachannel\r\n"_qs,
                               u"v=0\r\na=sctp-port:99999999999999999999\r\n"_qs};
    introduce();
    answerer->startAsAnswerer();
    ASSERT_TRUE(offerer->connect({}, 0));
    for (P2PTransport* peer : {offerer.get(), answerer.get()}) {
        for (const QString& text : garbage) {
            for (const char* type : {"answer", "nonsense", ""}) {
                peer->setRemoteDescription(text, QString::fromLatin1(type));
            }
            peer->addRemoteCandidate(text, u"0"_qs);
            peer->addRemoteCandidate(
                u"candidate:1 1 UDP 99999999999 256.0.0.1 99999 typ host "_qs + text, text);
        }
    }
    EXPECT_TRUE(log.contains("warning|P2PTransport: remote description refused: "));
    EXPECT_TRUE(log.contains("warning|P2PTransport: remote ICE candidate refused: "));
    EXPECT_TRUE(QTest::qWaitFor(
        [this] { return offerer->isConnected() && answerer->isConnected(); }, kPatienceMs));
}

} // namespace
} // namespace corvane
