#include "support/LogCapture.h"
#include "transport/P2PTransport.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <iostream>
#include <random>

namespace corvane {
namespace {

using Messages = std::vector<std::pair<ChannelType, QByteArray>>;

/// After which a connection counts as silent; long, as nothing shows the progress of one message.
constexpr int kInactivityTimeoutMs = 40'000;

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
///
/// On a busy machine the library fails now and then where nothing is wrong with either side: its
/// DTLS handshake may begin before the remote description that it has to be checked against is in
/// place, and its SCTP stack may lose the retransmission timer together with a burst of packets.
/// So a connection that stays silent is tried again; one that says anything wrong fails at once.
class PeerLoopbackTest : public ::testing::Test {
protected:
    PeerLoopbackTest() { renew(); }

    void TearDown() override {
        for (const std::string& line : HasFailure() ? log.lines() : std::vector<std::string>{}) {
            std::cerr << line << '\n';
        }
    }

    void renew() {
        offerer = std::make_unique<P2PTransport>();
        answerer = std::make_unique<P2PTransport>();
        atOfferer.clear();
        atAnswerer.clear();
        for (P2PTransport* peer : {offerer.get(), answerer.get()}) {
            QObject::connect(peer, &ITransport::dataReceived, peer,
                             [this, peer](ChannelType channel, const QByteArray& bytes) {
                                 auto& inbox = peer == offerer.get() ? atOfferer : atAnswerer;
                                 inbox.emplace_back(channel, bytes);
                             });
        }
        carry(*offerer, *answerer);
        carry(*answerer, *offerer);
    }

    /// Has `attempt` made with fresh transports until it succeeds.
    void succeeds(const std::function<bool()>& attempt) {
        for (int i = 0; i < 5 && !HasFailure(); ++i) {
            renew();
            if (attempt()) {
                return;
            }
        }
        ADD_FAILURE() << atOfferer.size() << " and " << atAnswerer.size() << " messages arrived";
    }

    bool bothConnect() {
        return QTest::qWaitFor([this] { return offerer->isConnected() && answerer->isConnected(); },
                               kInactivityTimeoutMs);
    }

    bool connectPeers() {
        answerer->startAsAnswerer();
        return offerer->connect({}, 0) && bothConnect();
    }

    void sendBothWays(const QByteArray& message) {
        for (P2PTransport* peer : {offerer.get(), answerer.get()}) {
            ASSERT_TRUE(send(*peer, ChannelType::Control, message)) << message.size();
        }
    }

    /// Whether `sent`, and nothing else, arrives on both sides.
    bool arrivesBothWays(const Messages& sent) {
        size_t before = 0;
        do {
            before = atOfferer.size() + atAnswerer.size();
            (void)QTest::qWaitFor([&] { return atOfferer.size() + atAnswerer.size() > before; },
                                  before < 2 * sent.size() ? kInactivityTimeoutMs : 0);
        } while (atOfferer.size() + atAnswerer.size() > before);
        for (const Messages& inbox : {std::cref(atOfferer), std::cref(atAnswerer)}) {
            EXPECT_LE(inbox.size(), sent.size());
            EXPECT_TRUE(std::equal(inbox.begin(), inbox.end(), sent.begin()));
        }
        return before == 2 * sent.size();
    }

    test::LogCapture log;
    std::unique_ptr<P2PTransport> offerer;
    std::unique_ptr<P2PTransport> answerer;
    Messages atOfferer;
    Messages atAnswerer;
};

TEST_F(PeerLoopbackTest, MessagesOfAnySizeArriveWholeAndInOrderBothWays) {
    const size_t sizes[] = {
        1, 1200, 65'535, 65'536, 262'145, 2'000'000, P2PTransport::kMaxMessageSize};
    Messages sent;
    for (const size_t size : sizes) {
        sent.emplace_back(ChannelType::Control, randomBytes(size));
    }
    succeeds([&] {
        if (!connectPeers()) {
            return false;
        }
        for (const auto& [channel, message] : sent) {
            sendBothWays(message);
        }
        return arrivesBothWays(sent);
    });
    for (P2PTransport* peer : {offerer.get(), answerer.get()}) {
        EXPECT_FALSE(send(*peer, ChannelType::Control, QByteArray(sent.back().second + 'x')));
        EXPECT_TRUE(peer->roundTripMilliseconds().has_value());
    }
}

TEST_F(PeerLoopbackTest, FramesArriveWhole) {
    for (const size_t size : {1U, 1200U, 100'000U, 2'000'000U}) {
        const QByteArray frame = randomBytes(size);
        // Nothing is sent twice on this channel, and even loopback may drop a datagram.
        succeeds([&] {
            if (!connectPeers()) {
                return false;
            }
            for (int attempt = 0; attempt < 20 && atAnswerer.empty(); ++attempt) {
                EXPECT_TRUE(send(*offerer, ChannelType::Video, frame));
                (void)QTest::qWaitFor([this] { return !atAnswerer.empty(); }, 1000);
            }
            return !atAnswerer.empty();
        });
        EXPECT_TRUE(atAnswerer.front() == std::pair(ChannelType::Video, frame)) << size;
    }
}

TEST_F(PeerLoopbackTest, AWaitingSenderLetsTheQueueDrain) {
    const QByteArray message = randomBytes(4 * 1024 * 1024);
    const Messages sent(7, {ChannelType::Control, message});
    succeeds([&] {
        if (!connectPeers()) {
            return false;
        }
        for (size_t i = 0; i < sent.size(); ++i) {
            sendBothWays(message);
        }
        EXPECT_GT(offerer->bytesQueued(), message.size());
        const bool drained = offerer->waitUntilQueued(message.size());
        EXPECT_TRUE(!drained || offerer->bytesQueued() <= message.size());
        return drained && arrivesBothWays(sent);
    });
}

TEST_F(PeerLoopbackTest, TheOtherSideNoticesTheEndOnce) {
    for (const bool destroy : {false, true}) {
        succeeds([this] { return connectPeers(); });
        const QSignalSpy lost(answerer.get(), &ITransport::disconnected);
        const QSignalSpy own(offerer.get(), &ITransport::disconnected);
        destroy ? offerer.reset() : offerer->disconnect();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !lost.isEmpty(); }, kInactivityTimeoutMs));
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
        renew();
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
    succeeds([&] {
        answerer->startAsAnswerer();
        EXPECT_TRUE(offerer->connect({}, 0));
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
        return bothConnect();
    });
    EXPECT_TRUE(log.contains("warning|P2PTransport: remote description refused: "));
    EXPECT_TRUE(log.contains("warning|P2PTransport: remote ICE candidate refused: "));
}

} // namespace
} // namespace corvane
