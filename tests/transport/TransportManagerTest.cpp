#include "transport/TransportManager.h"
#include "ScriptedRelay.h"
#include "support/LogCapture.h"
#include "transport/IPeerTransport.h"

#include <QPointer>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

TEST(RelayCandidate, SmallestKnownMetricWinsAndTiesKeepTheEarlier) {
    const std::pair<std::vector<int32_t>, int> cases[] = {
        {{}, -1},        {{-1}, 0},        {{-1, 30, 20, 20}, 2},
        {{5, -1, 5}, 0}, {{10, 0, -1}, 1}, {{-1, -5}, 0},
    };
    for (const auto& [metrics, chosen] : cases) {
        std::vector<RelayCandidate> candidates;
        for (const int32_t metric : metrics) {
            candidates.push_back({QString(), QString(), 0, metric});
        }
        const RelayCandidate* choice = preferredRelay(candidates);
        const auto index = choice == nullptr ? -1 : choice - candidates.data();
        EXPECT_EQ(index, chosen) << "of " << metrics.size() << " candidates";
    }
}

/// Records what it is told in `calls`, which may outlive it; the test emits its signals.
class ScriptedPeerTransport : public IPeerTransport {
public:
    explicit ScriptedPeerTransport(QStringList& calls) : m_calls(calls) {}

    bool connect(const std::string&, uint16_t) override { return note(u"offer"_s); }
    void startAsAnswerer() override { note(u"answer"_s); }
    void disconnect() override { note(u"disconnect"_s); }
    bool isConnected() const override { return false; }
    bool send(ChannelType, const uint8_t*, size_t) override { return false; }
    qint64 bytesQueued() const override { return 0; }
    bool waitUntilQueued(qint64) override { return false; }
    std::optional<double> roundTripMilliseconds() const override { return std::nullopt; }
    void setRemoteDescription(const QString&, const QString&) override {}
    void addRemoteCandidate(const QString&, const QString&) override {}

private:
    bool note(const QString& call) {
        m_calls.append(call);
        return true;
    }

    QStringList& m_calls;
};

class TransportManagerTest : public ::testing::Test {
protected:
    /// A manager that has a scripted peer-to-peer transport, or none.
    void create(bool hasPeer = true, std::chrono::milliseconds timeout = 10'000ms) {
        const auto factory = [this, hasPeer] {
            auto made = hasPeer ? std::make_unique<ScriptedPeerTransport>(peerCalls) : nullptr;
            peer = made.get();
            return made;
        };
        manager = std::make_unique<TransportManager>(nullptr, factory, timeout);
        established =
            std::make_unique<QSignalSpy>(manager.get(), &TransportManager::connectionEstablished);
        failed = std::make_unique<QSignalSpy>(manager.get(), &TransportManager::connectionFailed);
    }

    void establish(std::optional<uint16_t> relayPort = {}, NatType natType = NatType::Unknown) {
        std::vector<RelayCandidate> candidates;
        if (relayPort) {
            candidates.push_back({u"node"_s, u"127.0.0.1"_s, *relayPort, -1});
        }
        manager->establishConnection(u"s-1"_s, natType, natType, candidates, true);
    }

    bool waitFor(const QSignalSpy& spy) {
        return QTest::qWaitFor([&] { return spy.count() > 0; });
    }

    test::LogCapture log;
    test::ScriptedRelay relay;
    QStringList peerCalls;
    QPointer<ScriptedPeerTransport> peer;
    std::unique_ptr<TransportManager> manager;
    std::unique_ptr<QSignalSpy> established;
    std::unique_ptr<QSignalSpy> failed;
};

TEST_F(TransportManagerTest, OnlyKnownNatTypesTryThePeerFirst) {
    const std::tuple<int, int, bool> cases[] = {{0, 0, true},  {3, 3, true},   {4, 0, false},
                                                {0, 4, false}, {-1, 0, false}, {0, 255, false}};
    create();
    for (const auto& [local, remote, triesPeer] : cases) {
        peerCalls.clear();
        manager->establishConnection(u"s-1"_s, NatType(local), NatType(remote), {}, true);
        EXPECT_EQ(peerCalls.contains(u"offer"_s), triesPeer) << local << " and " << remote;
    }
}

TEST_F(TransportManagerTest, PeerThatConnectsWinsWhateverErrorsCameBefore) {
    create();
    manager->establishConnection(u"s-1"_s, NatType::Open, NatType::Open,
                                 {{u"n"_s, u"127.0.0.1"_s, relay.port(), -1}}, false);
    ASSERT_EQ(peerCalls, QStringList(u"answer"_s));
    Q_EMIT peer->transportError(u"ice failed"_s);
    EXPECT_EQ(manager->activeTransport(), nullptr);
    Q_EMIT peer->connected();
    ASSERT_EQ(established->count(), 1);
    EXPECT_EQ((*established)[0][0].toString(), u"p2p"_s);
    EXPECT_EQ(manager->activeTransport(), peer);
    EXPECT_EQ(failed->count(), 0);
    EXPECT_FALSE(relay.hasVisitor());
}

TEST_F(TransportManagerTest, TimeoutFallsBackToTheRelay) {
    create(true, 20ms);
    establish(relay.port());
    ASSERT_TRUE(waitFor(*established));
    EXPECT_EQ((*established)[0][0].toString(), u"relay"_s);
    EXPECT_TRUE(peerCalls.contains(u"disconnect"_s));
    ASSERT_TRUE(relay.accept());
    EXPECT_TRUE(relay.read(45).endsWith(R"({"session_id":"s-1","type":"relay_join"})"));
    EXPECT_TRUE(manager->activeTransport()->isConnected());
}

TEST_F(TransportManagerTest, FailuresNameTheirReason) {
    create(true, 20ms);
    establish();
    ASSERT_TRUE(waitFor(*failed));
    EXPECT_EQ((*failed)[0][0], u"No relay candidates available"_s);
    failed->clear();
    establish(1, NatType(4));
    ASSERT_TRUE(waitFor(*failed));
    EXPECT_EQ((*failed)[0][0], u"All connection methods failed. Last error: Connection refused"_s);
}

TEST_F(TransportManagerTest, OwnerMayCleanUpOrDestroyFromInsideTheFailure) {
    for (const bool destroy : {false, true}) {
        create(false);
        QObject::connect(manager.get(), &TransportManager::connectionFailed, manager.get(),
                         [&] { destroy ? manager.reset() : manager->cleanup(); });
        const QPointer<TransportManager> alive(manager.get());
        establish(1);
        ASSERT_TRUE(waitFor(*failed));
        EXPECT_EQ(alive.isNull(), destroy);
        EXPECT_FALSE(log.contains("reconnecting in"));
    }
}

TEST_F(TransportManagerTest, CleanUpFromInsideATransportSignalDefersItsEnd) {
    create();
    QObject::connect(manager.get(), &TransportManager::connectionEstablished, manager.get(),
                     &TransportManager::cleanup);
    establish(relay.port());
    Q_EMIT peer->connected();
    EXPECT_EQ(manager->activeTransport(), nullptr);
    ASSERT_FALSE(peer.isNull());
    EXPECT_EQ(peerCalls.last(), u"disconnect"_s);
    Q_EMIT peer->localDescriptionReady(u"offer"_s, u"late"_s);
    Q_EMIT peer->connected();
    EXPECT_EQ(established->count(), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return peer.isNull(); }));
}

TEST_F(TransportManagerTest, StartingOverGivesUpTheFormerAttempt) {
    create();
    establish();
    const QPointer<ScriptedPeerTransport> former = peer;
    establish();
    Q_EMIT former->connected();
    EXPECT_EQ(established->count(), 0);
    Q_EMIT peer->connected();
    EXPECT_EQ(manager->activeTransport(), peer);
}

} // namespace
} // namespace corvane
