#pragma once

#include "devserver/HttpMessages.h"

namespace corvane::devserver {

class DeviceRegistry;
class Misbehaviour;
class SessionBook;
class SignalingHub;

/// The REST endpoints: registration, login, heartbeat and the life cycle of a session.
class RestApi {
public:
    /// The four references must outlive the API.
    RestApi(DeviceRegistry& devices, SessionBook& sessions, SignalingHub& hub,
            const Misbehaviour& misbehaviour);

    Answer handle(const Request& request);

private:
    struct Call {
        QString caller; ///< client ID that the bearer token belongs to; empty where none is needed
        QString sessionId;
        QJsonObject body;
    };
    struct Route;

    Answer autoRegister(const Call& call);
    Answer autoLogin(const Call& call);
    Answer heartbeat(const Call& call);
    Answer createSession(const Call& call);
    Answer acknowledgeHandshake(const Call& call);
    Answer completeSession(const Call& call);
    Answer closeSession(const Call& call);

    Answer sessionReport(const QString& operation, const QString& sessionId,
                         const QString& state) const;
    QString callerOf(const Request& request) const;

    DeviceRegistry& m_devices;
    SessionBook& m_sessions;
    SignalingHub& m_hub;
    const Misbehaviour& m_misbehaviour;
};

} // namespace corvane::devserver
