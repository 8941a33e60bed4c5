#pragma once

#include "common/Backoff.h"
#include "network/server/HttpLimits.h"

#include <QObject>
#include <QString>
#include <QTimer>
#include <QUrl>
#include <QWebSocket>
#include <nlohmann/json.hpp>

#include <chrono>
#include <cstdint>
#include <memory>

namespace corvane {

/// The WebSocket over which the server pushes session events and forwards WebRTC descriptions and
/// candidates. Authenticates whenever the socket opens and reconnects by itself after a drop.
/// Incoming messages are limited to `kMaxSignalingMessageBytes`. Main thread only.
class SignalingClient : public QObject {
    Q_OBJECT

public:
    /// `handshakeTimeout`: how long a connection attempt may take before it is abandoned and
    /// retried.
    explicit SignalingClient(QObject* parent = nullptr,
                             std::chrono::milliseconds handshakeTimeout = kMaxServerSilence);
    ~SignalingClient() override;

    /// Opens the connection, replacing any earlier one, and keeps it open from now on. `serverUrl`
    /// is the server's HTTP base URL; `token` the bearer token of `clientId`.
    void connectToServer(const QUrl& serverUrl, const QString& clientId, const QString& token);

    /// Closes the connection and does not reconnect before the next `connectToServer`.
    void disconnectFromServer();

    /// Sends one message; dropped with a warning while not connected.
    void sendMessage(const nlohmann::json& message);

    /// Whether the socket is open, authenticated or not.
    bool isConnected() const;

Q_SIGNALS:
    /// The server has accepted the token.
    void connected();
    void disconnected();

    /// Emitted for every JSON message, before the signal for its type.
    void messageReceived(nlohmann::json message);
    void sessionHandshakeRequest(QString sessionId, QString masterClientId, QString purpose);
    void sessionAutoAccept(QString sessionId, QString masterClientId, QString masterEcdhPublicKey);
    void sessionHandshakeAck(QString sessionId, QString state, QString targetEcdhPublicKey);
    void connectionError(QString error);
    void iceOffer(QString sessionId, QString fromClientId, QString sdp);
    void iceAnswer(QString sessionId, QString fromClientId, QString sdp);
    void iceCandidate(QString sessionId, QString fromClientId, QString candidate, QString mid);

private Q_SLOTS:
    void onConnected();
    void onDisconnected();
    void onTextMessageReceived(const QString& text);
    void onError(QAbstractSocket::SocketError error);
    void attemptReconnect();

private:
    void createSocket();
    void dispatch(const nlohmann::json& message);
    void acceptAuthentication();
    void rejectAuthentication();
    void onHandshakeTimeout();

    /// Created for the first connection, because loading the system's certificates takes time.
    std::unique_ptr<QWebSocket> m_socket;
    QTimer m_reconnectTimer;
    QTimer m_handshakeTimer;
    QUrl m_serverUrl;
    QString m_clientId;
    QString m_token;
    int32_t m_reconnectAttempts = 0;
    Backoff m_reconnectBackoff{std::chrono::seconds(1), std::chrono::seconds(30)};
};

} // namespace corvane
