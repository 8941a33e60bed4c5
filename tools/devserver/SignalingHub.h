#pragma once

#include <QHash>
#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QString>

#include <memory>

class QWebSocket;

namespace corvane::devserver {

class DeviceRegistry;
class Misbehaviour;
class SessionBook;

/// The signaling side: authenticates the clients' sockets, keeps the password and pairing code that
/// each has published, pushes messages and forwards offers, answers and candidates within a
/// session.
class SignalingHub : public QObject {
    Q_OBJECT

public:
    /// The three references must outlive the hub.
    SignalingHub(const DeviceRegistry& devices, const SessionBook& sessions,
                 const Misbehaviour& misbehaviour, QObject* parent);
    ~SignalingHub() override;

    /// Takes ownership of a newly opened socket; one whose path names no client is closed.
    void adopt(std::unique_ptr<QWebSocket> socket);

    bool isOnline(const QString& clientId) const { return m_online.contains(clientId); }

    /// Whether `password` opens sessions to an online client without asking its user.
    bool isSessionPassword(const QString& clientId, const QString& password) const;

    /// Whether `code` lets a viewer ask an online client's user for a session.
    bool isPairingCode(const QString& clientId, const QString& code) const;

    /// Both do nothing when the client is offline.
    void push(const QString& clientId, const QJsonObject& message);
    void pushText(const QString& clientId, const QString& text);

    /// Closes the client's authenticated socket.
    void drop(const QString& clientId);

    /// The latest messages of a client, oldest first, whether its socket was authenticated or not.
    QList<QJsonObject> messagesFrom(const QString& clientId) const;

private:
    struct Presence {
        QWebSocket* socket = nullptr;
        QString password = {};
        QString pairingCode = {};
    };
    struct Received {
        QString clientId;
        QJsonObject message;
    };

    void onTextMessage(QWebSocket* socket, const QString& text);
    void onDisconnected(QWebSocket* socket);
    void authenticate(QWebSocket* socket, const QString& clientId, const QJsonObject& message);
    void handle(const QString& clientId, Presence& presence, const QJsonObject& message);
    void forward(const QString& clientId, const QJsonObject& message);

    const DeviceRegistry& m_devices;
    const SessionBook& m_sessions;
    const Misbehaviour& m_misbehaviour;
    QHash<QString, Presence> m_online;
    QList<Received> m_received;
};

} // namespace corvane::devserver
