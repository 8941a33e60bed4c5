#include "ProtocolExamples.h"

#include "DocumentedKeys.h"
#include "ScratchSettings.h"
#include "app/settings/SettingsController.h"
#include "common/JsonFields.h"
#include "network/DevServerTest.h"
#include "network/identity/AuthController.h"
#include "network/reachability/HeartbeatService.h"
#include "network/server/ApiClient.h"
#include "network/server/SignalLines.h"
#include "network/server/SignalingClient.h"
#include "session/SessionTransport.h"
#include "support/Eventually.h"

#include <QJsonDocument>
#include <gtest/gtest.h>

namespace corvane::docs {
namespace {

using namespace Qt::StringLiterals;

/// A device on a server that keeps what it sends and lets it receive what an example says.
class Device {
public:
    Device()
        : lines(signaling, &SignalingClient::connected, &SignalingClient::connectionError,
                &SignalingClient::sessionAutoAccept, &SignalingClient::sessionHandshakeRequest,
                &SignalingClient::sessionHandshakeAck, &SignalingClient::iceOffer,
                &SignalingClient::iceAnswer, &SignalingClient::iceCandidate) {
        m_device = m_server.registerDevice();
    }

    void connect() { signaling.connectToServer(m_server.url(), m_device.clientId, token()); }

    bool isOnline() {
        connect();
        return lines.waitFor(u"connected"_s);
    }

    QString token() const { return m_device.token; }

    void receive(const Example& example) {
        m_server.pushText(m_device.clientId, QString::fromUtf8(example.text));
    }

    /// Whether the device sends the message, whatever else it sends.
    bool sends(const nlohmann::json& message) {
        return test::eventually([&] {
            for (const QJsonObject& sent : m_server.signalingMessages(m_device.clientId)) {
                if (parseJson(QJsonDocument(sent).toJson().toStdString()) == message) {
                    return true;
                }
            }
            return false;
        });
    }

    SignalingClient signaling;
    test::SignalLines lines;

private:
    test::FreePortServer m_server;
    devserver::Device m_device;
};

/// The signal that a received message becomes, as in `SignalLines`.
Check becomes(const QString& line) {
    return [line](const Example& example) {
        Device device;
        ASSERT_TRUE(device.isOnline());
        device.receive(example);
        EXPECT_EQ(device.lines.next(), line.toStdString());
    };
}

void compareAuthentication(const Example& example) {
    Device device;
    device.connect();
    nlohmann::json message = example.json();
    EXPECT_EQ(jsonStringOrEmpty(message, "token"), u"t0k3n"_s);
    message["token"] = device.token().toStdString();
    EXPECT_TRUE(device.sends(message));
}

/// Of a device that has told the server its password and its pairing code.
class IdentifiedDevice : public Device {
public:
    IdentifiedDevice() { EXPECT_TRUE(isOnline()); }

private:
    const test::ScratchSettings m_place;
    SettingsController m_settings;
    ApiClient m_api;
    HeartbeatService m_heartbeat{&m_api};

public:
    AuthController auth{&m_api, &signaling, &m_heartbeat, &m_settings};
};

void comparePassword(const Example& example) {
    IdentifiedDevice device;
    device.auth.setSessionPassword(u"Passw0rd"_s);
    EXPECT_TRUE(device.sends(example.json()));
}

void comparePairingCode(const Example& example) {
    IdentifiedDevice device;
    device.auth.regeneratePairingCode();
    nlohmann::json message = example.json();
    EXPECT_EQ(jsonStringOrEmpty(message, "code").size(), device.auth.pairingCode().size());
    message["code"] = device.auth.pairingCode().toStdString();
    EXPECT_TRUE(device.sends(message));
}

/// A peer transport that only ever has a description and a candidate to tell the other peer.
class TalkingTransport : public IPeerTransport {
public:
    bool connect(const std::string&, uint16_t) override {
        Q_EMIT localDescriptionReady(u"offer"_s, u"v=0\r\no=- 1 0 IN IP4 127.0.0.1\r\n"_s);
        Q_EMIT localCandidateReady(u"candidate:1 1 UDP 2122317823 192.168.1.20 50000 typ host"_s,
                                   u"0"_s);
        return true;
    }
    void startAsAnswerer() override {
        Q_EMIT localDescriptionReady(u"answer"_s, u"v=0\r\no=- 2 0 IN IP4 127.0.0.1\r\n"_s);
    }
    void disconnect() override {}
    bool isConnected() const override { return false; }
    bool send(ChannelType, const uint8_t*, size_t) override { return false; }
    qint64 bytesQueued() const override { return 0; }
    bool waitUntilQueued(qint64) override { return false; }
    std::optional<double> roundTripMilliseconds() const override { return std::nullopt; }
    void setRemoteDescription(const QString&, const QString&) override {}
    void addRemoteCandidate(const QString&, const QString&) override {}
};

/// What a peer sends to the other by way of the server, as the offering side or the answering one.
Check isSentBy(bool offerer) {
    return [offerer](const Example& example) {
        Device device;
        ASSERT_TRUE(device.isOnline());
        SessionTransport transport(&device.signaling, u"7f1c"_s, u"730164285"_s,
                                   [] { return std::make_unique<TalkingTransport>(); });
        transport.establish(u"127.0.0.1"_s, offerer);
        EXPECT_TRUE(device.sends(example.json()));
    };
}

} // namespace

Checks signalingChecks() {
    return {
        {"json signaling-auth", compareAuthentication},
        {"json signaling-auth-ok", becomes(u"connected"_s)},
        {"json signaling-auth-fail",
         becomes(u"connectionError|Authentication rejected by server"_s)},
        {"json signaling-set-password", comparePassword},
        {"json signaling-set-pairing-code", comparePairingCode},
        {"json signaling-session-auto-accept",
         becomes(u"sessionAutoAccept|7f1c|482915637|"_s + viewerPublicKey())},
        {"json signaling-session-handshake-request",
         becomes(u"sessionHandshakeRequest|7f1c|482915637|remote_desktop"_s)},
        {"json signaling-session-handshake-ack",
         becomes(u"sessionHandshakeAck|7f1c|handshaking|"_s + sharedMachinePublicKey())},
        {"json signaling-ice-offer-sent", isSentBy(true)},
        {"json signaling-ice-answer-sent", isSentBy(false)},
        {"json signaling-ice-candidate-sent", isSentBy(true)},
        {"json signaling-ice-offer-received",
         becomes(u"iceOffer|7f1c|482915637|v=0\r\no=- 1 0 IN IP4 127.0.0.1\r\n"_s)},
        {"json signaling-ice-answer-received",
         becomes(u"iceAnswer|7f1c|730164285|v=0\r\no=- 2 0 IN IP4 127.0.0.1\r\n"_s)},
        {"json signaling-ice-candidate-received",
         becomes(u"iceCandidate|7f1c|730164285|"
                 "candidate:1 1 UDP 2122317823 192.168.1.30 50001 typ host|0"_s)},
    };
}

} // namespace corvane::docs
