#include "devserver/SignalingHub.h"

#include "devserver/DeviceRegistry.h"
#include "devserver/HttpMessages.h"
#include "devserver/Misbehaviour.h"
#include "devserver/SessionBook.h"

#include <QWebSocket>

#include <array>

using namespace Qt::StringLiterals;

namespace corvane::devserver {
namespace {

QString clientOf(const QWebSocket* socket) {
    const QString path = socket->requestUrl().path();
    const QString prefix = QStringLiteral("/ws/clients/");
    return path.startsWith(prefix) ? path.mid(prefix.size()) : QString();
}

void send(QWebSocket* socket, const QJsonObject& message) {
    socket->sendTextMessage(QString::fromUtf8(compactJson(message)));
}

} // namespace

SignalingHub::SignalingHub(const DeviceRegistry& devices, const SessionBook& sessions,
                           const Misbehaviour& misbehaviour, QObject* parent)
    : QObject(parent), m_devices(devices), m_sessions(sessions), m_misbehaviour(misbehaviour) {}

SignalingHub::~SignalingHub() {
    for (QWebSocket* socket : findChildren<QWebSocket*>()) {
        socket->disconnect(this);
    }
}

void SignalingHub::adopt(std::unique_ptr<QWebSocket> owned) {
    QWebSocket* socket = owned.release();
    socket->setParent(this);
    socket->setMaxAllowedIncomingFrameSize(kMaxMessageBytes);
    socket->setMaxAllowedIncomingMessageSize(kMaxMessageBytes);
    connect(socket, &QWebSocket::disconnected, this, [this, socket] { onDisconnected(socket); });
    connect(socket, &QWebSocket::textMessageReceived, this,
            [this, socket](const QString& text) { onTextMessage(socket, text); });
    if (clientOf(socket).isEmpty()) {
        socket->close(QWebSocketProtocol::CloseCodePolicyViolated);
    }
}

bool SignalingHub::isSessionPassword(const QString& clientId, const QString& password) const {
    return !password.isEmpty() && m_online.value(clientId).password == password;
}

bool SignalingHub::isPairingCode(const QString& clientId, const QString& code) const {
    return !code.isEmpty() && m_online.value(clientId).pairingCode == code;
}

void SignalingHub::push(const QString& clientId, const QJsonObject& message) {
    pushText(clientId, QString::fromUtf8(compactJson(message)));
}

void SignalingHub::pushText(const QString& clientId, const QString& text) {
    const auto presence = m_online.find(clientId);
    if (presence != m_online.end()) {
        presence->socket->sendTextMessage(text);
    }
}

void SignalingHub::drop(const QString& clientId) {
    QWebSocket* socket = m_online.take(clientId).socket;
    if (socket) {
        socket->close(QWebSocketProtocol::CloseCodeGoingAway);
    }
}

QList<QJsonObject> SignalingHub::messagesFrom(const QString& clientId) const {
    QList<QJsonObject> messages;
    for (const Received& received : m_received) {
        if (received.clientId == clientId) {
            messages.append(received.message);
        }
    }
    return messages;
}

void SignalingHub::onTextMessage(QWebSocket* socket, const QString& text) {
    const QString clientId = clientOf(socket);
    const QJsonObject message = jsonObject(text.toUtf8());
    if (clientId.isEmpty() || message.isEmpty()) {
        return;
    }
    m_received.append({clientId, message});
    if (m_received.size() > kMaxLogEntries) {
        m_received.removeFirst();
    }
    const auto presence = m_online.find(clientId);
    if (presence != m_online.end() && presence->socket == socket) {
        handle(clientId, *presence, message);
    } else {
        authenticate(socket, clientId, message);
    }
}

void SignalingHub::onDisconnected(QWebSocket* socket) {
    const auto presence = m_online.find(clientOf(socket));
    if (presence != m_online.end() && presence->socket == socket) {
        m_online.erase(presence);
    }
    socket->deleteLater();
}

void SignalingHub::authenticate(QWebSocket* socket, const QString& clientId,
                                const QJsonObject& message) {
    if (message["type"_L1].toString() != "AUTH"_L1) {
        return;
    }
    const QString token = message["token"_L1].toString();
    if (m_misbehaviour.rejectsAuth() || m_devices.clientOfToken(token) != clientId) {
        send(socket, {{u"type"_s, u"AUTH_FAIL"_s}});
        return;
    }
    drop(clientId);
    m_online.insert(clientId, {.socket = socket});
    send(socket, {{u"type"_s, u"AUTH_OK"_s}});
}

void SignalingHub::handle(const QString& clientId, Presence& presence, const QJsonObject& message) {
    const QString type = message["type"_L1].toString();
    if (type == "SET_PASSWORD"_L1) {
        presence.password = message["password"_L1].toString();
    } else if (type == "SET_PAIRING_CODE"_L1) {
        presence.pairingCode = message["code"_L1].toString();
    } else if (!m_misbehaviour.withholdsIce()) {
        forward(clientId, message);
    }
}

void SignalingHub::forward(const QString& clientId, const QJsonObject& message) {
    struct Forwarded {
        QString type;
        QList<QString> texts;
    };
    static const std::array kForwarded{
        Forwarded{u"ICE_OFFER"_s, {u"sdp"_s}},
        Forwarded{u"ICE_ANSWER"_s, {u"sdp"_s}},
        Forwarded{u"ICE_CANDIDATE"_s, {u"candidate"_s, u"mid"_s}},
    };
    const QString sessionId = message["session_id"_L1].toString();
    const QString targetId = message["target_client_id"_L1].toString();
    for (const Forwarded& kind : kForwarded) {
        if (kind.type == message["type"_L1].toString() &&
            m_sessions.connects(sessionId, clientId, targetId)) {
            QJsonObject copy{{u"type"_s, kind.type},
                             {u"session_id"_s, sessionId},
                             {u"from_client_id"_s, clientId}};
            for (const QString& text : kind.texts) {
                copy.insert(text, message[text]);
            }
            push(targetId, copy);
        }
    }
}

} // namespace corvane::devserver
