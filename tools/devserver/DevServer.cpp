#include "devserver/DevServer.h"

#include "devserver/HttpFront.h"
#include "devserver/MisbehaviourControl.h"
#include "devserver/RestApi.h"
#include "devserver/SignalingHub.h"
#include "devserver/StunResponder.h"

#include <QWebSocket>

namespace corvane::devserver {
namespace {

bool refuse(QString* error, const QString& reason) {
    if (error) {
        *error = reason;
    }
    return false;
}

} // namespace

DevServer::DevServer(QObject* parent)
    : QObject(parent),
      m_hub(std::make_unique<SignalingHub>(m_devices, m_sessions, m_misbehaviour, this)),
      m_relay(std::make_unique<RelayNode>(this)), m_stun(std::make_unique<StunResponder>(this)),
      m_api(std::make_unique<RestApi>(m_devices, m_sessions, *m_hub, m_misbehaviour)),
      m_control(std::make_unique<MisbehaviourControl>(*this)),
      m_front(std::make_unique<HttpFront>(
          m_misbehaviour, [this](const Request& request) { return answer(request); }, this)) {
    connect(&m_front->listener(), &HttpListener::newWebSocketConnection, this,
            &DevServer::onSignalingOpened);
}

DevServer::~DevServer() = default;

bool DevServer::start(const DevServerConfig& config, QString* error) {
    if (config.loopbackOnly && !config.address.isLoopback()) {
        return refuse(
            error, QStringLiteral("%1 is not a loopback address").arg(config.address.toString()));
    }
    const auto cannotListen = [&](quint16 port, const QString& reason) {
        return refuse(error, QStringLiteral("Cannot listen on %1 port %2: %3")
                                 .arg(config.address.toString())
                                 .arg(port)
                                 .arg(reason));
    };
    QString reason;
    if (!m_front->listener().start(config.address, config.httpPort, reason)) {
        return cannotListen(config.httpPort, reason);
    }
    if (!m_relay->start(config.address, config.relayPort, reason)) {
        return cannotListen(config.relayPort, reason);
    }
    m_address = config.address;
    m_pages.setBaseUrl(url());
    m_stun->start(config.address, config.stunPort);
    return true;
}

QUrl DevServer::url() const {
    QUrl url;
    url.setScheme(QStringLiteral("http"));
    url.setHost(m_address.toString());
    url.setPort(httpPort());
    return url;
}

quint16 DevServer::httpPort() const {
    return m_front->listener().port();
}

quint16 DevServer::stunPort() const {
    return m_stun->port();
}

Device DevServer::registerDevice(const QString& fingerprint) {
    return m_devices.registerDevice(fingerprint).value_or(Device{});
}

QList<Request> DevServer::requests() const {
    return m_front->requests();
}

QList<QJsonObject> DevServer::signalingMessages(const QString& clientId) const {
    return m_hub->messagesFrom(clientId);
}

bool DevServer::isOnline(const QString& clientId) const {
    return m_hub->isOnline(clientId);
}

void DevServer::pushText(const QString& clientId, const QString& text) {
    m_hub->pushText(clientId, text);
}

void DevServer::dropSignaling(const QString& clientId) {
    m_hub->drop(clientId);
}

Answer DevServer::answer(const Request& request) {
    if (const auto controlled = m_control->answer(request)) {
        return *controlled;
    }
    if (const auto page = m_pages.answer(request)) {
        return *page;
    }
    return m_api->handle(request);
}

void DevServer::onSignalingOpened() {
    while (auto socket = m_front->listener().nextPendingWebSocketConnection()) {
        m_hub->adopt(std::move(socket));
    }
}

} // namespace corvane::devserver
