#include "TransportManager.h"
#include "LogCapture.h"
#include "ScriptedPeerTransport.h"
#include "ScriptedRelay.h"

#include <QPointer>
#include <QSignalSpy>
#include <gtest/gtest.h>

namespace corvane {
namespace {

using namespace std::chrono_literals;
using test::ScriptedPeerTransport;

const QString kSession = QStringLiteral("s-1");

TEST(RelayCandidate, SmallestKnownMetricWinsAndTiesKeepTheEarlier) {
    const std::pair<std::vector<int32_t>, int> cases[] = {
        {{}, -1},        {{-1}, 0},        {{-1, 30, 20, 20}, 2}, {{-1, -5}, 0},
        {{5, -1, 5}, 0}, {{10, 0, -1}, 1}, {{-1, 7}, 1},          {{20, 30}, 0},
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

class TransportManagerTest : public ::testing::Test {
protected:
    PeerTransportFactory scriptedPeer() {
        return [this] {
            auto made = std::make_unique<ScriptedPeerTransport>(peerCalls);
            peer = made.get();
            return made;
        };
    }

    void create(PeerTransportFactory factory, std::chrono::milliseconds timeout = 10'000ms) {
        manager = std::make_unique<TransportManager>(nullptr, std::move(factory), timeout);
        established =
            std::make_unique<QSignalSpy>(manager.get(), &TransportManager::connectionEstablished);
        failed = std::make_unique<QSignalSpy>(manager.get(), &TransportManager::connectionFailed);
    }

    std::vector<RelayCandidate> relayAt(uint16_t port) const {
        return {{QStringLiteral("node"), QStringLiteral("127.0.0.1"), port, -1}};
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

TEST_F(TransportManagerTest, OnlyNatTypesZeroToThreeTryThePeerFirst) {
    const struct {
        int local, remote;
        bool triesPeer;
    } cases[] = {{0, 0, true},  {3, 3, true},   {4, 0, false},
                 {0, 4, false}, {-1, 0, false}, {0, 255, false}};
    create(scriptedPeer());
    for (const auto& item : cases) {
        peerCalls.clear();
        manager->establishConnection(kSession, item.local, item.remote, {}, true);
        EXPECT_EQ(peerCalls.contains(u"offer"_qs), item.triesPeer)
            << item.local << " and " << item.remote;
    }
}

TEST_F(TransportManagerTest, PeerThatConnectsWinsWhateverErrorsCameBefore) {
    create(scriptedPeer());
    manager->establishConnection(kSession, 0, 0, relayAt(relay.port()), false);
    ASSERT_EQ(peerCalls, QStringList(u"answer"_qs));
    Q_EMIT peer->transportError(u"ice failed"_qs);
    EXPECT_TRUE(log.contains("TransportManager: P2P error: ice failed"));
    EXPECT_EQ(manager->activeTransport(), nullptr);
    Q_EMIT peer->connected();
    ASSERT_EQ(established->count(), 1);
    EXPECT_EQ((*established)[0][0].toString(), u"p2p"_qs);
    EXPECT_EQ(manager->activeTransport(), peer);
    EXPECT_EQ(failed->count(), 0);
    EXPECT_FALSE(relay.hasVisitor());
}

TEST_F(TransportManagerTest, NegotiationPassesBothWaysInOrder) {
    create(scriptedPeer());
    manager->setRemoteDescription(u"early"_qs, u"offer"_qs);
    manager->addRemoteCandidate(u"early"_qs, u"0"_qs);
    manager->establishConnection(kSession, 0, 0, {}, true);
    QSignalSpy descriptions(manager.get(), &TransportManager::localDescriptionReady);
    QSignalSpy candidates(manager.get(), &TransportManager::localCandidateReady);
    Q_EMIT peer->localDescriptionReady(u"offer"_qs, u"v=0"_qs);
    Q_EMIT peer->localCandidateReady(u"cand"_qs, u"0"_qs);
    manager->setRemoteDescription(u"v=1"_qs, u"answer"_qs);
    manager->addRemoteCandidate(u"far"_qs, u"1"_qs);
    ASSERT_EQ(descriptions.count(), 1);
    EXPECT_EQ(descriptions[0], (QVariantList{u"offer"_qs, u"v=0"_qs}));
    ASSERT_EQ(candidates.count(), 1);
    EXPECT_EQ(candidates[0], (QVariantList{u"cand"_qs, u"0"_qs}));
    EXPECT_EQ(peerCalls,
              (QStringList{u"offer"_qs, u"description answer v=1"_qs, u"candidate far 1"_qs}));
}

TEST_F(TransportManagerTest, TimeoutFallsBackToTheRelay) {
    create(scriptedPeer(), 20ms);
    manager->establishConnection(kSession, 0, 0, relayAt(relay.port()), true);
    ASSERT_TRUE(waitFor(*established));
    EXPECT_EQ(log.count("warning|TransportManager: P2P connection timed out after 20 ms, falling "
                        "back to relay"),
              1);
    EXPECT_EQ((*established)[0][0].toString(), u"relay"_qs);
    EXPECT_TRUE(peerCalls.contains(u"disconnect"_qs));
    ASSERT_TRUE(relay.accept());
    EXPECT_TRUE(relay.read(45).endsWith(R"({"session_id":"s-1","type":"relay_join"})"));
    ASSERT_NE(manager->activeTransport(), nullptr);
    EXPECT_TRUE(manager->activeTransport()->isConnected());
}

TEST_F(TransportManagerTest, WithoutAPeerTransportTheRelayIsTriedAtOnce) {
    create([] { return nullptr; });
    manager->establishConnection(kSession, 0, 0, relayAt(relay.port()), true);
    EXPECT_EQ(log.count("info|TransportManager: P2P is not built in, going directly to relay"), 1);
    EXPECT_TRUE(waitFor(*established));
}

TEST_F(TransportManagerTest, FailuresNameTheirReason) {
    create(scriptedPeer(), 20ms);
    manager->establishConnection(kSession, 0, 0, {}, true);
    ASSERT_TRUE(waitFor(*failed));
    EXPECT_EQ((*failed)[0][0], u"No relay candidates available"_qs);
    failed->clear();
    manager->establishConnection(kSession, 4, 4, relayAt(1), true);
    ASSERT_TRUE(waitFor(*failed));
    EXPECT_EQ((*failed)[0][0], u"All connection methods failed. Last error: Connection refused"_qs);
}

TEST_F(TransportManagerTest, OwnerMayCleanUpOrDestroyFromInsideTheFailure) {
    for (const bool destroy : {false, true}) {
        create([] { return nullptr; });
        QObject::connect(manager.get(), &TransportManager::connectionFailed, manager.get(),
                         [&] { destroy ? manager.reset() : manager->cleanup(); });
        const QPointer<TransportManager> alive(manager.get());
        manager->establishConnection(kSession, 0, 0, relayAt(1), true);
        ASSERT_TRUE(waitFor(*failed));
        EXPECT_EQ(alive.isNull(), destroy);
        EXPECT_FALSE(log.contains("reconnecting in"));
    }
}

TEST_F(TransportManagerTest, CleanUpFromInsideATransportSignalDefersItsEnd) {
    create(scriptedPeer());
    QObject::connect(manager.get(), &TransportManager::connectionEstablished, manager.get(),
                     &TransportManager::cleanup);
    manager->establishConnection(kSession, 0, 0, relayAt(relay.port()), true);
    Q_EMIT peer->connected();
    EXPECT_EQ(manager->activeTransport(), nullptr);
    ASSERT_FALSE(peer.isNull());
    EXPECT_EQ(peerCalls.last(), u"disconnect"_qs);
    Q_EMIT peer->localDescriptionReady(u"offer"_qs, u"late"_qs);
    Q_EMIT peer->connected();
    EXPECT_EQ(established->count(), 1);
    EXPECT_TRUE(QTest::qWaitFor([this] { return peer.isNull(); }));
}

TEST_F(TransportManagerTest, StartingOverGivesUpTheFormerAttempt) {
    create(scriptedPeer());
    manager->establishConnection(kSession, 0, 0, {}, true);
    const QPointer<ScriptedPeerTransport> former = peer;
    manager->establishConnection(kSession, 0, 0, {}, true);
    Q_EMIT former->connected();
    EXPECT_EQ(established->count(), 0);
    Q_EMIT peer->connected();
    EXPECT_EQ(manager->activeTransport(), peer);
}

} // namespace
} // namespace corvane
