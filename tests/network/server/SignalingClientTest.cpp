#include "network/server/SignalingClient.h"
#include "SignalLines.h"
#include "network/CannedServer.h"
#include "network/DevServerTest.h"

#include <QSignalSpy>
#include <QWebSocket>
#include <QWebSocketServer>

namespace corvane {
namespace {

using test::eventually;
using namespace Qt::StringLiterals;

class SignalingClientTest : public test::DevServerTest {
protected:
    SignalingClientTest() {
        QObject::connect(&m_client, &SignalingClient::messageReceived,
                         [this](const auto& message) { m_messages.push_back(jsonText(message)); });
    }

    /// Starts connecting to the server as a registered device.
    void connectClient() {
        m_client.connectToServer(m_server.url(), m_device.clientId, m_device.token);
    }

    bool isOnline() const { return m_server.isOnline(m_device.clientId); }

    bool goOnline() {
        connectClient();
        return m_signals.waitFor(u"connected"_s);
    }

    bool waitForLog(const std::string& line, int count = 1) {
        return eventually([&] { return m_log.count(line) >= count; });
    }

    const devserver::Device m_device = m_server.registerDevice();
    std::vector<std::string> m_messages;
    SignalingClient m_client;
    test::SignalLines m_signals = test::SignalLines(
        m_client, &SignalingClient::connected, &SignalingClient::disconnected,
        &SignalingClient::sessionHandshakeRequest, &SignalingClient::sessionAutoAccept,
        &SignalingClient::sessionHandshakeAck, &SignalingClient::connectionError,
        &SignalingClient::iceOffer, &SignalingClient::iceAnswer, &SignalingClient::iceCandidate);
};

const std::string kReconnecting = "info|Reconnecting in 1000 ms (attempt 1/10)";

TEST_F(SignalingClientTest, TheUrlFollowsTheServers) {
    m_client.connectToServer(QUrl(u"https://localhost:8443/any/path"_s), u"123456789"_s, u"tok"_s);
    EXPECT_TRUE(m_log.contains("server: wss://localhost:8443/ws/clients/123456789"));
}

TEST_F(SignalingClientTest, ConnectedMeansAuthenticated) {
    QWebSocketServer server({}, QWebSocketServer::NonSecureMode);
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    m_client.sendMessage({{"type", "early"}});
    EXPECT_TRUE(m_log.once("warning|Cannot send message: not connected"));
    m_client.connectToServer(server.serverUrl(), u"123456789"_s, u"tok"_s);
    ASSERT_TRUE(eventually([&] { return server.hasPendingConnections(); }));
    const std::unique_ptr<QWebSocket> peer(server.nextPendingConnection());
    EXPECT_EQ(peer->requestUrl().path(), u"/ws/clients/123456789"_s);
    EXPECT_EQ(peer->origin(), QString());
    QSignalSpy received(peer.get(), &QWebSocket::textMessageReceived);
    ASSERT_TRUE(received.wait());
    EXPECT_TRUE(m_client.isConnected());
    EXPECT_TRUE(m_signals.isEmpty());

    peer->sendTextMessage(uR"({"type":"AUTH_OK"})"_s);
    EXPECT_TRUE(m_signals.waitFor(u"connected"_s));
    EXPECT_TRUE(m_log.once(R"(debug|Signaling message: {"type":"AUTH_OK"})"));
}

TEST_F(SignalingClientTest, OddMessagesAreSkippedAndOversizedOnesEndTheConnection) {
    ASSERT_TRUE(goOnline());
    m_server.pushText(m_device.clientId, uR"({"type":"ICE_CANDIDATE","candidate":["c"]})"_s);
    EXPECT_EQ(m_signals.next(), "iceCandidate||||");
    m_messages.clear();
    const std::vector<std::string> odd{R"({"session_id":"s"})", R"({"type":"ice_offer"})",
                                       R"({"type":["ICE_OFFER"]})", R"(["ICE_OFFER"])", "7"};
    for (const std::string& text : odd) {
        m_server.pushText(m_device.clientId, QString::fromStdString(text));
    }
    m_server.pushText(m_device.clientId, u"{broken"_s);
    m_server.pushText(m_device.clientId, QString(100'000, u'['));
    m_server.pushText(m_device.clientId, uR"({"type":"AUTH_OK"})"_s);
    EXPECT_EQ(m_signals.next(), "connected");
    EXPECT_EQ(std::vector(m_messages.begin(), m_messages.end() - 1), odd);
    EXPECT_TRUE(m_log.contains("warning|Failed to parse signaling message: [json.exception"));

    m_messages.clear();
    m_server.pushText(m_device.clientId, QString(1024 * 1024 + 1, u'1'));
    EXPECT_TRUE(waitForLog(kReconnecting));
    EXPECT_TRUE(m_messages.empty());
}

TEST_F(SignalingClientTest, ADropIsMendedAfterASecondButNotARejectedToken) {
    m_server.misbehaviour().setRejectAuth(true);
    connectClient();
    EXPECT_TRUE(m_signals.waitFor(u"connectionError|Authentication rejected by server"_s));
    EXPECT_TRUE(waitForLog("info|Signaling WebSocket disconnected"));
    EXPECT_FALSE(m_client.isConnected());
    EXPECT_TRUE(m_log.once("error|Signaling auth rejected by server — not reconnecting"));
    EXPECT_FALSE(m_log.contains("Reconnecting"));

    m_server.misbehaviour().setRejectAuth(false);
    ASSERT_TRUE(goOnline());
    m_server.dropSignaling(m_device.clientId);
    EXPECT_TRUE(m_signals.waitFor(u"disconnected"_s));
    EXPECT_TRUE(m_log.once(kReconnecting));
    EXPECT_TRUE(m_signals.waitFor(u"connected"_s));
    EXPECT_TRUE(m_log.once("info|Attempting reconnect 1/10"));
}

TEST_F(SignalingClientTest, ServersThatCannotBeReachedAreTriedAgain) {
    m_client.connectToServer(test::deafUrl(), u"1"_s, u"tok"_s);
    EXPECT_TRUE(m_signals.waitFor(u"connectionError|Connection refused"_s));
    EXPECT_TRUE(waitForLog("error|WebSocket error (0): Connection refused"));
    EXPECT_TRUE(waitForLog(kReconnecting, 2)) << "each attempt counts as the first";

    const test::CannedServer noUpgrade("HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n");
    m_log.clear();
    m_client.connectToServer(noUpgrade.url(), u"1"_s, u"tok"_s);
    EXPECT_TRUE(waitForLog(kReconnecting));

    m_client.disconnectFromServer();
    m_log.clear();
    const test::CannedServer silent;
    SignalingClient impatient(nullptr, std::chrono::milliseconds(50));
    impatient.connectToServer(silent.url(), u"1"_s, u"tok"_s);
    EXPECT_TRUE(waitForLog(kReconnecting));
}

TEST_F(SignalingClientTest, DisconnectingIsForGood) {
    ASSERT_TRUE(goOnline());
    m_client.disconnectFromServer();
    EXPECT_TRUE(eventually([&] { return !isOnline(); }));
    EXPECT_FALSE(m_client.isConnected());
    EXPECT_EQ(m_log.count(kReconnecting), 0);

    ASSERT_TRUE(goOnline());
    m_server.dropSignaling(m_device.clientId);
    ASSERT_TRUE(waitForLog(kReconnecting));
    m_client.disconnectFromServer();
    EXPECT_FALSE(QTest::qWaitFor([&] { return m_log.contains("Attempting"); }, 1200));
}

TEST_F(SignalingClientTest, ConnectingAgainReplacesTheConnection) {
    ASSERT_TRUE(goOnline());
    const auto other = m_server.registerDevice();
    m_client.connectToServer(m_server.url(), other.clientId, other.token);
    EXPECT_TRUE(m_signals.waitFor(u"connected"_s));
    EXPECT_TRUE(eventually([&] { return !isOnline() && m_server.isOnline(other.clientId); }));

    QObject::connect(&m_client, &SignalingClient::messageReceived, [this](const auto& message) {
        if (message == "leave") {
            m_client.disconnectFromServer();
        }
    });
    QObject::connect(&m_client, &SignalingClient::disconnected, [this] { connectClient(); });
    m_server.pushText(other.clientId, u"\"leave\""_s);
    EXPECT_TRUE(m_signals.waitFor(u"disconnected"_s));
    EXPECT_TRUE(m_signals.waitFor(u"connected"_s)) << "handlers may disconnect and connect";
    EXPECT_TRUE(isOnline());
    EXPECT_FALSE(m_log.contains("Reconnecting"));
}

} // namespace
} // namespace corvane
