#include "network/server/SignalingClient.h"

#include "common/JsonFields.h"

#include <spdlog/spdlog.h>

#include <array>
#include <string_view>
#include <utility>

namespace corvane {

namespace {

constexpr int32_t kMaxReconnectAttempts = 10;

QUrl webSocketUrl(const QUrl& serverUrl, const QString& clientId) {
    QUrl url = serverUrl;
    url.setScheme(serverUrl.scheme() == QStringLiteral("https") ? QStringLiteral("wss")
                                                                : QStringLiteral("ws"));
    url.setPath(QStringLiteral("/ws/clients/") + clientId, QUrl::DecodedMode);
    return url;
}

} // namespace

SignalingClient::SignalingClient(QObject* parent, std::chrono::milliseconds handshakeTimeout)
    : QObject(parent) {
    m_reconnectTimer.setSingleShot(true);
    m_handshakeTimer.setSingleShot(true);
    m_handshakeTimer.setInterval(handshakeTimeout);
    connect(&m_reconnectTimer, &QTimer::timeout, this, &SignalingClient::attemptReconnect);
    connect(&m_handshakeTimer, &QTimer::timeout, this, &SignalingClient::onHandshakeTimeout);
}

// Closing the socket emits a signal, which must not reach a half-destroyed object.
SignalingClient::~SignalingClient() {
    if (m_socket) {
        m_socket->disconnect(this);
    }
}

void SignalingClient::createSocket() {
    m_socket = std::make_unique<QWebSocket>(QString(), QWebSocketProtocol::Version13);
    m_socket->setMaxAllowedIncomingMessageSize(kMaxSignalingMessageBytes);
    m_socket->setMaxAllowedIncomingFrameSize(kMaxSignalingMessageBytes);
    connect(m_socket.get(), &QWebSocket::connected, this, &SignalingClient::onConnected);
    connect(m_socket.get(), &QWebSocket::disconnected, this, &SignalingClient::onDisconnected);
    connect(m_socket.get(), &QWebSocket::textMessageReceived, this,
            &SignalingClient::onTextMessageReceived);
    connect(m_socket.get(), qOverload<QAbstractSocket::SocketError>(&QWebSocket::error), this,
            &SignalingClient::onError);
}

void SignalingClient::connectToServer(const QUrl& serverUrl, const QString& clientId,
                                      const QString& token) {
    m_serverUrl = serverUrl;
    m_clientId = clientId;
    m_token = token;
    // `attemptReconnect` also ends up here, so the back-off starts over with every attempt. That is
    // on purpose: an unreachable server is tried every second for as long as it takes.
    m_reconnectAttempts = 0;
    m_reconnectBackoff.reset();
    m_reconnectTimer.stop();
    const QUrl url = webSocketUrl(serverUrl, clientId);
    spdlog::info("Connecting to signaling server: {}", url.toString().toStdString());
    m_handshakeTimer.start();
    if (!m_socket) {
        createSocket();
    }
    m_socket->open(url);
}

void SignalingClient::disconnectFromServer() {
    m_reconnectAttempts = kMaxReconnectAttempts;
    m_reconnectTimer.stop();
    m_handshakeTimer.stop();
    if (isConnected()) {
        m_socket->close(QWebSocketProtocol::CloseCodeNormal);
    } else if (m_socket) {
        m_socket->abort();
    }
}

void SignalingClient::sendMessage(const nlohmann::json& message) {
    if (!isConnected()) {
        spdlog::warn("Cannot send message: not connected");
        return;
    }
    m_socket->sendTextMessage(QString::fromStdString(jsonText(message)));
}

bool SignalingClient::isConnected() const {
    return m_socket && m_socket->state() == QAbstractSocket::ConnectedState;
}

void SignalingClient::onConnected() {
    m_handshakeTimer.stop();
    spdlog::info("Signaling WebSocket connected, sending auth");
    sendMessage({{"type", "AUTH"}, {"token", m_token.toStdString()}});
}

void SignalingClient::onDisconnected() {
    m_handshakeTimer.stop();
    spdlog::info("Signaling WebSocket disconnected");
    Q_EMIT disconnected();
    const bool reopened = m_socket->state() != QAbstractSocket::UnconnectedState;
    if (reopened || m_reconnectAttempts >= kMaxReconnectAttempts) {
        return;
    }
    const auto delay = m_reconnectBackoff.next();
    spdlog::info("Reconnecting in {} ms (attempt {}/{})", delay.count(), m_reconnectAttempts + 1,
                 kMaxReconnectAttempts);
    m_reconnectTimer.start(delay);
}

void SignalingClient::attemptReconnect() {
    ++m_reconnectAttempts;
    spdlog::info("Attempting reconnect {}/{}", m_reconnectAttempts, kMaxReconnectAttempts);
    connectToServer(m_serverUrl, m_clientId, m_token);
}

void SignalingClient::onHandshakeTimeout() {
    spdlog::warn("SignalingClient: the server did not answer the WebSocket handshake");
    m_socket->abort();
}

void SignalingClient::onError(QAbstractSocket::SocketError error) {
    const QString text = m_socket->errorString();
    spdlog::error("WebSocket error ({}): {}", static_cast<int>(error), text.toStdString());
    Q_EMIT connectionError(text);
}

void SignalingClient::onTextMessageReceived(const QString& text) {
    const std::string raw = text.toStdString();
    spdlog::debug("Signaling message: {}", raw);
    std::string parseError;
    const auto message = parseJson(raw, &parseError);
    if (message.is_discarded()) {
        spdlog::warn("Failed to parse signaling message: {}", parseError);
        return;
    }
    Q_EMIT messageReceived(message);
    dispatch(message);
}

void SignalingClient::dispatch(const nlohmann::json& message) {
    using Action = void (*)(SignalingClient&, const nlohmann::json&);
    static constexpr std::array<std::pair<std::string_view, Action>, 8> kActions{{
        {"AUTH_OK",
         [](SignalingClient& client, const nlohmann::json&) {
             client.acceptAuthentication();
         }},
        {"AUTH_FAIL",
         [](SignalingClient& client, const nlohmann::json&) {
             client.rejectAuthentication();
         }},
        {"SESSION_HANDSHAKE_REQUEST",
         [](SignalingClient& client, const nlohmann::json& m) {
             Q_EMIT client.sessionHandshakeRequest(jsonStringOrEmpty(m, "session_id"),
                                                   jsonStringOrEmpty(m, "master_client_id"),
                                                   jsonStringOrEmpty(m, "purpose"));
         }},
        {"SESSION_AUTO_ACCEPT",
         [](SignalingClient& client, const nlohmann::json& m) {
             const QString session = jsonStringOrEmpty(m, "session_id");
             const QString master = jsonStringOrEmpty(m, "master_client_id");
             spdlog::info("Session auto-accepted: {} from {}", session.toStdString(),
                          master.toStdString());
             Q_EMIT client.sessionAutoAccept(session, master,
                                             jsonStringOrEmpty(m, "master_ecdh_public_key"));
         }},
        {"SESSION_HANDSHAKE_ACK",
         [](SignalingClient& client, const nlohmann::json& m) {
             const QString session = jsonStringOrEmpty(m, "session_id");
             const QString state = jsonStringOrEmpty(m, "state");
             spdlog::info("Session handshake ACK: {} state={}", session.toStdString(),
                          state.toStdString());
             Q_EMIT client.sessionHandshakeAck(session, state,
                                               jsonStringOrEmpty(m, "target_ecdh_public_key"));
         }},
        {"ICE_OFFER",
         [](SignalingClient& client, const nlohmann::json& m) {
             Q_EMIT client.iceOffer(jsonStringOrEmpty(m, "session_id"),
                                    jsonStringOrEmpty(m, "from_client_id"),
                                    jsonStringOrEmpty(m, "sdp"));
         }},
        {"ICE_ANSWER",
         [](SignalingClient& client, const nlohmann::json& m) {
             Q_EMIT client.iceAnswer(jsonStringOrEmpty(m, "session_id"),
                                     jsonStringOrEmpty(m, "from_client_id"),
                                     jsonStringOrEmpty(m, "sdp"));
         }},
        {"ICE_CANDIDATE",
         [](SignalingClient& client, const nlohmann::json& m) {
             Q_EMIT client.iceCandidate(
                 jsonStringOrEmpty(m, "session_id"), jsonStringOrEmpty(m, "from_client_id"),
                 jsonStringOrEmpty(m, "candidate"), jsonStringOrEmpty(m, "mid"));
         }},
    }};
    const std::string type = jsonStringOrEmpty(message, "type").toStdString();
    for (const auto& [name, action] : kActions) {
        if (name == type) {
            action(*this, message);
            return;
        }
    }
}

void SignalingClient::acceptAuthentication() {
    spdlog::info("Signaling auth confirmed");
    m_reconnectAttempts = 0;
    m_reconnectBackoff.reset();
    Q_EMIT connected();
}

void SignalingClient::rejectAuthentication() {
    spdlog::error("Signaling auth rejected by server — not reconnecting");
    m_reconnectAttempts = kMaxReconnectAttempts;
    m_socket->close(QWebSocketProtocol::CloseCodeNormal);
    Q_EMIT connectionError(tr("Authentication rejected by server"));
}

} // namespace corvane
