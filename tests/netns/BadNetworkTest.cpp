#include "devserver/DevServer.h"
#include "netns/PeerProcess.h"
#include "netns/TestNetwork.h"

#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace corvane::test {
namespace {

using namespace std::chrono_literals;

constexpr int kTimeoutMs = 10'000;
constexpr int kChatMessages = 500; ///< each way

struct Network {
    const char* name;
    Conditions conditions = {};
    /// What has to carry the session. Where packets get lost, peer to peer may not be up in time,
    /// so the relay will do, too.
    const char* transport = "p2p";
    int connectionLimitMs = 5000;
    /// How long a picture may remain broken. A lost packet is noticed by one that follows it, at
    /// most 300 ms later, after 200 ms; a key frame is asked for every 500 ms, as long as one of
    /// its own packets is lost, too; and a busy machine takes its time to encode one.
    int repairLimitMs = 3000;
};

void PrintTo(const Network& network, std::ostream* out) {
    *out << network.name;
}

constexpr const char* kAnyTransport = nullptr;

constexpr Network kNetworks[] = {
    {"Undisturbed"},
    {"Loss1", {.udpLossPercent = 1}, "p2p", 5000, 6000},
    {"Loss3", {.udpLossPercent = 3}, kAnyTransport, 7000, 8000},
    {"Loss5", {.udpLossPercent = 5}, kAnyTransport, 7000, 10'000},
    {"Delay20ms", {.delay = 20ms}},
    {"Delay150ms", {.delay = 150ms}},
    {"Rate2Mbit", {.kilobitsPerSecond = 2000}, "p2p", 5000, 5000},
    {"UdpBlocked", {.udpLossPercent = 100}, "relay", 7000},
};

class BadNetworkTest : public testing::TestWithParam<Network> {
protected:
    static constexpr int kPicturesABurst = 6;
    static constexpr int kBursts = 6;

    void SetUp() override {
        if (!CORVANE_HAS_P2P && GetParam().conditions.udpLossPercent < 100) {
            GTEST_SKIP() << "built without the peer-to-peer transport";
        }
        if (!m_network.obstacle().isEmpty()) {
            GTEST_SKIP() << m_network.obstacle().toStdString();
        }
        const QString program = QStringLiteral(CORVANE_NETWORK_PEER);
        ASSERT_TRUE(m_target.start(program) && m_viewer.start(program));
        m_network.attach(m_viewer.id());
        m_network.attach(m_target.id());
        if (!m_network.obstacle().isEmpty()) {
            GTEST_SKIP() << m_network.obstacle().toStdString();
        }
        QString error;
        ASSERT_TRUE(
            m_server.start({.address = QHostAddress(QLatin1String(TestNetwork::kServerAddress)),
                            .stunPort = 0,
                            .loopbackOnly = false},
                           &error))
            << error.toStdString();
        m_targetId = takeOnline(m_target);
        takeOnline(m_viewer);
        m_target.order({{"do", "share"}});
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return m_server.signalingMessages(m_targetId).size() == 2; }, kTimeoutMs));
    }

    QString takeOnline(PeerProcess& peer) {
        const auto device = m_server.registerDevice();
        peer.order({{"do", "start"},
                    {"server", m_server.url().toString().toStdString()},
                    {"id", device.clientId.toStdString()},
                    {"token", device.token.toStdString()},
                    {"width", 640},
                    {"height", 360},
                    {"rate", 30}});
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return m_server.isOnline(device.clientId); }, kTimeoutMs));
        return device.clientId;
    }

    /// Milliseconds until both sides were connected.
    int connectPeers() {
        m_viewer.order({{"do", "connect"}, {"target", m_targetId.toStdString()}});
        const nlohmann::json connected{{"event", "state"}, {"state", "Connected"}};
        const auto begin = m_viewer.await({{"event", "connecting"}}, kTimeoutMs);
        const auto viewer = m_viewer.await(connected, kTimeoutMs);
        const auto target = m_target.await(connected, kTimeoutMs);
        if (!begin || !viewer || !target) {
            ADD_FAILURE() << "not connected";
            return kTimeoutMs;
        }
        m_transport = viewer->at("transport");
        EXPECT_EQ(target->at("transport"), m_transport);
        return std::max(viewer->at("at").get<int>(), target->at("at").get<int>()) -
               begin->at("at").get<int>();
    }

    /// Lets the target's screen show `pictures` and then stand still. The time from the last one to
    /// the whole picture at the viewer, in milliseconds.
    int showAndAwait(int pictures) {
        m_shown += pictures;
        const nlohmann::json last{{"last", m_shown - 1}};
        nlohmann::json show{{"do", "show"}}, expect{{"do", "expect"}}, still{{"event", "still"}},
            whole{{"event", "whole"}};
        for (auto* line : {&show, &expect, &still, &whole}) {
            line->update(last);
        }
        m_viewer.order(expect);
        m_target.order(show);
        const auto stopped = m_target.await(still, kTimeoutMs);
        const auto repaired = m_viewer.await(whole, GetParam().repairLimitMs + kTimeoutMs);
        if (!stopped || !repaired) {
            ADD_FAILURE() << "no whole picture of step " << m_shown - 1;
            return GetParam().repairLimitMs + kTimeoutMs;
        }
        m_decoded = repaired->at("pictures");
        return repaired->at("at").get<int>() - stopped->at("since").get<int>();
    }

    TestNetwork m_network{GetParam().conditions};
    devserver::DevServer m_server;
    PeerProcess m_target;
    PeerProcess m_viewer;
    QString m_targetId;
    std::string m_transport;
    int m_shown = 0;
    int m_decoded = 0;
};

TEST_P(BadNetworkTest, CarriesALiveSession) {
    const Network& network = GetParam();
    const int connectionMs = connectPeers();
    EXPECT_LE(connectionMs, network.connectionLimitMs);
    if (network.transport != kAnyTransport) {
        EXPECT_EQ(m_transport, network.transport);
    }

    const int firstMs = showAndAwait(1);
    for (PeerProcess* peer : {&m_viewer, &m_target}) {
        peer->order({{"do", "chat"}, {"count", kChatMessages}});
    }
    std::vector<int> repairs;
    for (int burst = 0; burst < kBursts; ++burst) {
        repairs.push_back(showAndAwait(kPicturesABurst));
        EXPECT_LE(repairs.back(), network.repairLimitMs);
    }

    std::vector<int> sent(kChatMessages);
    std::iota(sent.begin(), sent.end(), 0);
    for (PeerProcess* peer : {&m_viewer, &m_target}) {
        peer->await({{"event", "chat"}, {"number", kChatMessages - 1}}, kTimeoutMs);
        EXPECT_EQ(peer->numbers("chat", "number"), sent);
    }
    // Without peer-to-peer no session packet travels over UDP that could be lost.
    const bool lossy = CORVANE_HAS_P2P && network.conditions.udpLossPercent > 0;
    if (lossy) {
        EXPECT_GT(m_network.packetsLost(), 0);
    }
    std::sort(repairs.begin(), repairs.end());
    std::printf("%s: %s after %d ms, first picture %d ms, whole picture %d/%d/%d ms, "
                "%d of %d pictures, %d key frames asked for, %d packets lost\n",
                network.name, m_transport.c_str(), connectionMs, firstMs, repairs.front(),
                repairs[repairs.size() / 2], repairs.back(), m_decoded, m_shown,
                int(m_target.log().count("Key frame requested by Master")),
                lossy ? m_network.packetsLost() : 0);
    if (HasFailure()) {
        std::fprintf(stderr, "viewer:\n%starget:\n%s", m_viewer.log().constData(),
                     m_target.log().constData());
    }
}

INSTANTIATE_TEST_SUITE_P(Networks, BadNetworkTest, testing::ValuesIn(kNetworks),
                         [](const auto& network) { return std::string(network.param.name); });

} // namespace
} // namespace corvane::test
