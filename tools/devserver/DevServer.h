#pragma once

#include "devserver/DevServerConfig.h"
#include "devserver/DeviceRegistry.h"
#include "devserver/HttpMessages.h"
#include "devserver/Misbehaviour.h"
#include "devserver/PublicPages.h"
#include "devserver/RelayNode.h"
#include "devserver/SessionBook.h"

#include <QJsonObject>
#include <QList>
#include <QObject>
#include <QUrl>

#include <memory>

namespace corvane::devserver {

class HttpFront;
class MisbehaviourControl;
class RestApi;
class SignalingHub;
class StunResponder;

/// Central server, relay node and STUN responder on loopback, for tests and demonstrations. All
/// state is in memory. Lives on one thread with an event loop; all calls are made there.
class DevServer : public QObject {
    Q_OBJECT

public:
    using Request = devserver::Request;

    explicit DevServer(QObject* parent = nullptr);
    ~DevServer() override;

    /// Called once. False when the address is not a loopback address or the HTTP or relay port is
    /// not available; the reason goes to `error`. If only the STUN port is taken, `stunPort` stays
    /// at 0.
    bool start(const DevServerConfig& config, QString* error = nullptr);

    /// Base URL, e.g. "http://127.0.0.1:8420".
    QUrl url() const;
    QHostAddress address() const { return m_address; }
    quint16 httpPort() const;
    quint16 relayPort() const { return m_relay->port(); }
    quint16 stunPort() const;

    /// Registers a device without a request; an empty fingerprint creates a new one.
    Device registerDevice(const QString& fingerprint = {});

    /// The latest REST requests, oldest first.
    QList<Request> requests() const;

    /// The latest signaling messages received from a client, AUTH included, oldest first.
    QList<QJsonObject> signalingMessages(const QString& clientId) const;

    /// Whether the client has an authenticated signaling socket.
    bool isOnline(const QString& clientId) const;

    /// Sends a raw text frame to an online client.
    void pushText(const QString& clientId, const QString& text);

    /// Closes an online client's signaling socket.
    void dropSignaling(const QString& clientId);

    /// Sets the version that the update manifest announces.
    void setManifestVersion(const QString& version) { m_pages.setManifestVersion(version); }

    Misbehaviour& misbehaviour() { return m_misbehaviour; }
    RelayNode& relay() { return *m_relay; }
    StunResponder& stun() { return *m_stun; }

private:
    Answer answer(const Request& request);
    void onSignalingOpened();

    DeviceRegistry m_devices;
    SessionBook m_sessions;
    Misbehaviour m_misbehaviour;
    PublicPages m_pages;
    std::unique_ptr<SignalingHub> m_hub;
    std::unique_ptr<RelayNode> m_relay;
    std::unique_ptr<StunResponder> m_stun;
    std::unique_ptr<RestApi> m_api;
    std::unique_ptr<MisbehaviourControl> m_control;
    std::unique_ptr<HttpFront> m_front;
    QHostAddress m_address;
};

} // namespace corvane::devserver
