#include "devserver/RestApi.h"

#include "devserver/DeviceRegistry.h"
#include "devserver/Misbehaviour.h"
#include "devserver/SessionBook.h"
#include "devserver/SignalingHub.h"

#include <QRegularExpression>

#include <array>

using namespace Qt::StringLiterals;

namespace corvane::devserver {
namespace {

const QString kHandshaking = u"handshaking"_s;
const QString kConnected = u"connected"_s;
const QString kClosed = u"closed"_s;

Answer unknownSession() {
    return refusal(404, u"Session not found"_s);
}

Answer notAllowed() {
    return refusal(403, u"Not allowed for this session"_s);
}

Answer alreadyClosed() {
    return refusal(409, u"Session is closed"_s);
}

} // namespace

struct RestApi::Route {
    QString method;
    QRegularExpression path; ///< captures the session ID
    bool needsToken;
    Answer (RestApi::*operation)(const Call&);
};

RestApi::RestApi(DeviceRegistry& devices, SessionBook& sessions, SignalingHub& hub,
                 const Misbehaviour& misbehaviour)
    : m_devices(devices), m_sessions(sessions), m_hub(hub), m_misbehaviour(misbehaviour) {}

Answer RestApi::handle(const Request& request) {
    const auto route = [](const QString& method, const QString& path, bool needsToken,
                          auto operation) {
        return Route{method, QRegularExpression(QRegularExpression::anchoredPattern(path)),
                     needsToken, operation};
    };
    static const std::array kRoutes{
        route(u"POST"_s, u"/auth/auto-register"_s, false, &RestApi::autoRegister),
        route(u"POST"_s, u"/auth/auto-login"_s, false, &RestApi::autoLogin),
        route(u"POST"_s, u"/clients/heartbeat"_s, true, &RestApi::heartbeat),
        route(u"POST"_s, u"/sessions/create"_s, true, &RestApi::createSession),
        route(u"POST"_s, u"/sessions/([^/]+)/handshake-ack"_s, true,
              &RestApi::acknowledgeHandshake),
        route(u"PATCH"_s, u"/sessions/([^/]+)/complete"_s, true, &RestApi::completeSession),
        route(u"PATCH"_s, u"/sessions/([^/]+)/close"_s, true, &RestApi::closeSession),
    };
    for (const Route& candidate : kRoutes) {
        const auto match = candidate.path.match(request.path);
        if (request.method != candidate.method || !match.hasMatch()) {
            continue;
        }
        const QString caller = candidate.needsToken ? callerOf(request) : QString();
        if (candidate.needsToken && caller.isEmpty()) {
            return refusal(401, u"Not authenticated"_s);
        }
        return (this->*candidate.operation)({caller, match.captured(1), jsonObject(request.body)});
    }
    return refusal(404, u"Not found"_s);
}

Answer RestApi::autoRegister(const Call& call) {
    const auto device = m_devices.registerDevice(call.body["machine_fingerprint"_L1].toString());
    if (!device) {
        return refusal(503, u"Too many devices"_s);
    }
    return jsonAnswer({{u"client_id"_s, device->clientId},
                       {u"device_secret"_s, device->secret},
                       {u"token"_s, device->token}});
}

Answer RestApi::autoLogin(const Call& call) {
    const auto device = m_devices.login(call.body["client_id"_L1].toString(),
                                        call.body["device_secret"_L1].toString());
    if (!device) {
        return refusal(401, u"Invalid device credentials"_s);
    }
    return jsonAnswer({{u"client_id"_s, device->clientId}, {u"token"_s, device->token}});
}

Answer RestApi::heartbeat(const Call&) {
    return jsonAnswer({});
}

Answer RestApi::createSession(const Call& call) {
    const QString targetId = call.body["target_client_id"_L1].toString();
    const QString password = call.body["session_password"_L1].toString();
    if (call.body["master_client_id"_L1].toString() != call.caller) {
        return refusal(403, u"Not allowed for this device"_s);
    }
    if (!m_devices.contains(targetId)) {
        return refusal(404, u"Target client is not available"_s);
    }
    if (!m_hub.isOnline(targetId)) {
        return refusal(409, u"Target client is offline"_s);
    }
    const bool verified = m_hub.isSessionPassword(targetId, password);
    if (!verified && !m_hub.isPairingCode(targetId, password)) {
        return refusal(403, u"Invalid session password"_s);
    }

    const Session session = m_sessions.open(call.caller, targetId);
    QJsonObject push{{u"session_id"_s, session.id}, {u"master_client_id"_s, session.masterId}};
    if (verified) {
        push.insert(u"type"_s, u"SESSION_AUTO_ACCEPT"_s);
        push.insert(u"master_ecdh_public_key"_s, call.body["master_ecdh_public_key"_L1]);
    } else {
        push.insert(u"type"_s, u"SESSION_HANDSHAKE_REQUEST"_s);
        push.insert(u"purpose"_s, call.body["purpose"_L1]);
    }
    Answer answer = jsonAnswer({{u"session_id"_s, session.id},
                                {u"master_client_id"_s, session.masterId},
                                {u"target_client_id"_s, session.targetId},
                                {u"state"_s, session.state}});
    answer.afterwards = [this, targetId, push] {
        m_hub.push(targetId, push);
    };
    return answer;
}

Answer RestApi::acknowledgeHandshake(const Call& call) {
    Session* session = m_sessions.find(call.sessionId);
    if (!session) {
        return unknownSession();
    }
    if (session->targetId != call.caller) {
        return notAllowed();
    }
    if (session->state == kClosed) {
        return alreadyClosed();
    }
    session->state = kHandshaking;
    Answer answer = sessionReport(u"handshake-ack"_s, session->id, session->state);
    const QJsonObject push{{u"type"_s, u"SESSION_HANDSHAKE_ACK"_s},
                           {u"session_id"_s, session->id},
                           {u"state"_s, session->state},
                           {u"target_ecdh_public_key"_s, call.body["target_ecdh_public_key"_L1]}};
    answer.afterwards = [this, masterId = session->masterId, push] {
        m_hub.push(masterId, push);
    };
    return answer;
}

Answer RestApi::completeSession(const Call& call) {
    Session* session = m_sessions.find(call.sessionId);
    if (!session) {
        return unknownSession();
    }
    if (session->masterId != call.caller) {
        return notAllowed();
    }
    if (session->state == kClosed) {
        return alreadyClosed();
    }
    session->state = kConnected;
    return sessionReport(u"complete"_s, session->id, session->state);
}

Answer RestApi::closeSession(const Call& call) {
    Session* session = m_sessions.find(call.sessionId);
    if (!session) {
        return unknownSession();
    }
    if (!session->involves(call.caller)) {
        return notAllowed();
    }
    session->state = kClosed;
    return sessionReport(u"close"_s, session->id, session->state);
}

Answer RestApi::sessionReport(const QString& operation, const QString& sessionId,
                              const QString& state) const {
    return jsonAnswer({{u"session_id"_s, m_misbehaviour.sessionId(sessionId)},
                       {u"state"_s, m_misbehaviour.stateText(operation, state)}});
}

QString RestApi::callerOf(const Request& request) const {
    const QByteArray prefix = "Bearer ";
    if (!request.authorization.startsWith(prefix)) {
        return {};
    }
    return m_devices.clientOfToken(QString::fromUtf8(request.authorization.mid(prefix.size())));
}

} // namespace corvane::devserver
