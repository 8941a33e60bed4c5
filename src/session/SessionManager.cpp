#include "session/SessionManager.h"

#include "common/JsonFields.h"
#include "crypto/AesGcmCipher.h"
#include "crypto/EcdhKeyExchange.h"
#include "network/server/ApiClient.h"
#include "network/server/SignalingClient.h"
#include "services/ConnectionQualityMonitor.h"
#include "session/SessionDataPlane.h"
#include "session/SessionTransport.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <exception>

namespace corvane {

namespace {

/// Requests, as the REST client's error reports name them, whose failure no longer matters: by then
/// the session is connected or has ended.
constexpr auto kCompleteEndpoint = "/sessions/.../complete";
constexpr auto kCloseEndpoint = "/sessions/.../close";

bool isIdle(SessionState state) {
    return state == SessionState::Idle || state == SessionState::Failed;
}

} // namespace

SessionManager::SessionManager(ApiClient* api, SignalingClient* signaling, SessionPlatform platform,
                               QObject* parent)
    : QObject(parent), m_api(api), m_signaling(signaling), m_platform(std::move(platform)) {
    connect(m_api, &ApiClient::sessionCreated, this, &SessionManager::onSessionCreated);
    connect(m_api, &ApiClient::sessionUpdated, this, &SessionManager::onSessionUpdated);
    connect(m_api, &ApiClient::requestError, this, &SessionManager::onRequestError);
    connect(m_signaling, &SignalingClient::sessionHandshakeAck, this,
            &SessionManager::onHandshakeAck);
}

SessionManager::~SessionManager() {
    if (!isIdle(m_state)) {
        endSession(QStringLiteral("destructor_cleanup"));
    }
    cleanup();
}

void SessionManager::setCaptureFrameRate(int framesPerSecond) {
    m_streaming.captureFrameRate = std::clamp(framesPerSecond, 1, 60);
}

void SessionManager::setFrameRateWithInput(int framesPerSecond) {
    m_streaming.frameRateWithInput = std::clamp(framesPerSecond, 1, 60);
}

void SessionManager::setEncoderQuality(int quality, const std::string& speedText) {
    m_streaming.encoderQuality = std::clamp(quality, 0, 51);
    if (!speedText.empty()) {
        m_streaming.encoderSpeed = speedText;
    }
}

void SessionManager::setMonitorIndex(int index) {
    m_streaming.monitorIndex = index;
}

void SessionManager::setClipboardSharing(bool enabled) {
    m_streaming.clipboardSharing = enabled;
    if (m_dataPlane) {
        m_dataPlane->setClipboardSharing(enabled);
    }
}

void SessionManager::setQualityMonitor(ConnectionQualityMonitor* monitor) {
    m_qualityMonitor = monitor;
    if (m_dataPlane) {
        m_dataPlane->setQualityMonitor(monitor);
    }
}

ChatService* SessionManager::chatService() const {
    return m_dataPlane ? m_dataPlane->chatService() : nullptr;
}

FileTransferService* SessionManager::fileTransferService() const {
    return m_dataPlane ? m_dataPlane->fileTransferService() : nullptr;
}

void SessionManager::initiateSession(const QString& targetClientId, const QString& password) {
    if (!isIdle(m_state)) {
        spdlog::warn("initiateSession called in non-idle state: {}", sessionStateName(m_state));
        Q_EMIT sessionError(tr("Cannot initiate session: not idle"));
        return;
    }
    spdlog::info("Initiating session to target: {}", targetClientId.toStdString());
    m_role = SessionRole::Master;
    m_peerId = targetClientId;
    setState(SessionState::Initiating);
    if (!createKeyExchange()) {
        return;
    }
    m_api->createSession(targetClientId, password, QStringLiteral("remote_desktop"),
                         QString::fromStdString(m_keyExchange->publicKeyBase64()));
}

void SessionManager::onSessionCreated(const nlohmann::json& data) {
    if (m_role != SessionRole::Master || m_state != SessionState::Initiating) {
        return;
    }
    const auto sessionId = jsonString(data, "session_id");
    if (!sessionId) {
        spdlog::error("Session creation response missing session_id");
        fail(tr("Server returned invalid session data"));
        return;
    }
    m_sessionId = *sessionId;
    spdlog::info("Session created with ID: {}", m_sessionId.toStdString());
    setState(SessionState::Handshaking);
    if (const auto ack = std::exchange(m_earlyAck, std::nullopt);
        ack && ack->sessionId == m_sessionId) {
        onHandshakeAck(ack->sessionId, ack->state, ack->targetEcdhPublicKey);
    }
}

void SessionManager::onHandshakeAck(const QString& sessionId, const QString& state,
                                    const QString& targetEcdhPublicKey) {
    if (m_role == SessionRole::Master && m_state == SessionState::Initiating) {
        m_earlyAck = {sessionId, state, targetEcdhPublicKey};
        return;
    }
    if (m_role != SessionRole::Master || m_state != SessionState::Handshaking) {
        return;
    }
    spdlog::info("Handshake ACK received for session {} (state={})", sessionId.toStdString(),
                 state.toStdString());
    if (targetEcdhPublicKey.isEmpty()) {
        spdlog::error("Handshake ACK missing target ECDH public key");
        fail(tr("Missing target ECDH public key"));
        return;
    }
    if (!m_keyExchange->deriveSharedKey(targetEcdhPublicKey.toStdString())) {
        spdlog::error("ECDH key derivation failed");
        fail(tr("ECDH key derivation failed"));
        return;
    }
    if (createDataPlane()) {
        spdlog::info("ECDH key exchange completed (Master side)");
        setupTransport();
    }
}

void SessionManager::acceptSession(const QString& sessionId, const QString& masterClientId,
                                   const QString& masterEcdhPublicKey) {
    if (m_state == SessionState::Connected) {
        spdlog::info("Ending previous session to accept new one");
        endSession(QStringLiteral("new_session_incoming"));
    }
    if (!isIdle(m_state)) {
        spdlog::warn("acceptSession called in non-idle state: {}", sessionStateName(m_state));
        Q_EMIT sessionError(tr("Cannot accept session: not idle"));
        return;
    }
    spdlog::info("Accepting session {} from master {}", sessionId.toStdString(),
                 masterClientId.toStdString());
    m_role = SessionRole::Target;
    m_sessionId = sessionId;
    m_peerId = masterClientId;
    setState(SessionState::Handshaking);
    if (!createKeyExchange()) {
        return;
    }
    m_api->handshakeAck(m_sessionId, QString::fromStdString(m_keyExchange->publicKeyBase64()),
                        QString(), QString());
    if (masterEcdhPublicKey.isEmpty()) {
        return;
    }
    if (!m_keyExchange->deriveSharedKey(masterEcdhPublicKey.toStdString())) {
        spdlog::error("ECDH key derivation failed (Target side)");
        fail(tr("ECDH key derivation failed"));
        return;
    }
    if (createDataPlane()) {
        spdlog::info("ECDH key exchange completed (Target side)");
        setupTransport();
    }
}

void SessionManager::onSessionUpdated(const nlohmann::json& data) {
    const QString state = jsonStringOrEmpty(data, "state");
    spdlog::info("Session updated: state={}", state.toStdString());
    const QString sessionId = jsonStringOrEmpty(data, "session_id");
    if (sessionId != m_sessionId) {
        spdlog::info("Ignoring update of another session: {}", sessionId.toStdString());
        return;
    }
    if (state == u"connected") {
        if (m_state == SessionState::Connecting) {
            startStreaming();
            setState(SessionState::Connected);
        }
    } else if (state == u"closed" || state == u"failed") {
        spdlog::info("Session ended by server: {}", state.toStdString());
        Q_EMIT sessionEnding();
        stopStreaming();
        cleanup();
        setState(state == u"failed" ? SessionState::Failed : SessionState::Idle);
    }
}

void SessionManager::onRequestError(const QString& endpoint, int, const QString& detail) {
    if (endpoint == QLatin1String(kCompleteEndpoint) || endpoint == QLatin1String(kCloseEndpoint)) {
        return;
    }
    switch (m_state) {
    case SessionState::Idle:
    case SessionState::Connected:
    case SessionState::Closing:
        return;
    case SessionState::Initiating:
    case SessionState::Handshaking:
    case SessionState::Connecting:
    case SessionState::Failed:
        break;
    }
    spdlog::error("API error during session setup: {}", detail.toStdString());
    fail(detail);
}

void SessionManager::setupTransport() {
    spdlog::info("Setting up transport for session {}", m_sessionId.toStdString());
    setState(SessionState::Connecting);
    m_transport = std::make_unique<SessionTransport>(m_signaling, m_sessionId, m_peerId,
                                                     m_platform.peerTransport);
    connect(m_transport.get(), &SessionTransport::established, this,
            &SessionManager::onTransportEstablished);
    connect(m_transport.get(), &SessionTransport::failed, this, &SessionManager::onTransportFailed);
    m_transport->establish(m_api->serverUrl().host(), m_role == SessionRole::Master);
}

void SessionManager::onTransportEstablished(const QString& method) {
    spdlog::info("Transport established via {}", method.toStdString());
    m_transportMethod = method;
    ITransport* const transport = m_transport->activeTransport();
    connect(transport, &ITransport::dataReceived, this, &SessionManager::onTransportData);
    connect(transport, &ITransport::disconnected, this, [this] {
        if (m_state == SessionState::Connected) {
            spdlog::info("Transport disconnected by remote side");
            endSessionLater(QStringLiteral("remote_transport_closed"));
        }
    });
    m_dataPlane->setTransport(transport);
    if (m_role == SessionRole::Master) {
        m_api->completeSession(m_sessionId, method, QString());
    }
    startStreaming();
    setState(SessionState::Connected);
}

void SessionManager::onTransportFailed(const QString& reason) {
    spdlog::error("Transport failed: {}", reason.toStdString());
    fail(tr("Transport failed: %1").arg(reason));
}

void SessionManager::onTransportData(ChannelType channel, const QByteArray& data) {
    if (!m_dataPlane) {
        spdlog::warn("Received transport data but cipher is not initialized");
        return;
    }
    m_dataPlane->receive(channel, data);
}

void SessionManager::sendInputEvent(const InputEvent& event) {
    if (m_dataPlane) {
        m_dataPlane->sendInputEvent(event);
    }
}

void SessionManager::requestMonitorSwitch(int monitorIndex) {
    if (m_dataPlane) {
        m_dataPlane->requestMonitorSwitch(monitorIndex);
    }
}

void SessionManager::endSession(const QString& reason) {
    if (isIdle(m_state)) {
        return;
    }
    spdlog::info("Ending session {} (reason: {})", m_sessionId.toStdString(), reason.toStdString());
    Q_EMIT sessionEnding();
    setState(SessionState::Closing);
    stopStreaming();
    if (!m_sessionId.isEmpty()) {
        m_api->closeSession(m_sessionId, reason, 0);
    }
    cleanup();
    setState(SessionState::Idle);
}

void SessionManager::endSessionLater(const QString& reason) {
    const quint64 generation = m_generation;
    QMetaObject::invokeMethod(
        this,
        [this, generation, reason] {
            if (generation == m_generation && m_state == SessionState::Connected) {
                endSession(reason);
            }
        },
        Qt::QueuedConnection);
}

void SessionManager::setState(SessionState newState) {
    if (newState == m_state) {
        return;
    }
    spdlog::info("Session state: {} -> {}", sessionStateName(m_state), sessionStateName(newState));
    m_state = newState;
    if (m_dataPlane) {
        m_dataPlane->setState(newState);
    }
    Q_EMIT stateChanged(newState);
}

void SessionManager::fail(const QString& error) {
    // Clean up first: a slot connected to the failure may start the next session at once.
    cleanup();
    setState(SessionState::Failed);
    Q_EMIT sessionError(error);
}

bool SessionManager::createKeyExchange() {
    try {
        m_keyExchange = std::make_unique<EcdhKeyExchange>();
        return true;
    } catch (const std::exception& error) {
        spdlog::error("Failed to generate ECDH key pair: {}", error.what());
        fail(tr("Crypto error: %1").arg(QString::fromUtf8(error.what())));
        return false;
    }
}

bool SessionManager::createDataPlane() {
    try {
        m_dataPlane = std::make_unique<SessionDataPlane>(m_role, m_keyExchange->createCipher());
    } catch (const std::exception& error) {
        spdlog::error("Failed to create AES-GCM cipher: {}", error.what());
        fail(tr("Cipher error: %1").arg(QString::fromUtf8(error.what())));
        return false;
    }
    // From here on only the cipher holds the key.
    m_keyExchange.reset();
    auto* const plane = m_dataPlane.get();
    plane->setState(m_state);
    plane->setQualityMonitor(m_qualityMonitor);
    connect(plane, &SessionDataPlane::frameDecoded, this, &SessionManager::frameDecoded);
    connect(plane, &SessionDataPlane::inputEventReceived, this,
            &SessionManager::inputEventReceived);
    connect(plane, &SessionDataPlane::failed, this, &SessionManager::sessionError);
    connect(plane, &SessionDataPlane::disconnectRequested, this,
            [this] { endSessionLater(QStringLiteral("remote_disconnect")); });
    return true;
}

void SessionManager::startStreaming() {
    m_dataPlane->startStreaming(m_streaming, m_platform);
}

void SessionManager::stopStreaming() {
    spdlog::info("Stopping streaming");
    if (m_dataPlane) {
        m_dataPlane->stopStreaming();
    }
}

void SessionManager::cleanup() {
    spdlog::debug("Session cleanup");
    stopStreaming();
    ++m_generation;
    m_api->abandonSessionSetup();
    m_earlyAck.reset();
    // Clean-up may run inside a signal of either object: disconnect them now, delete them later.
    const auto retire = [this](auto& owner) {
        if (owner) {
            QObject* const object = owner.release();
            object->disconnect(this);
            object->setParent(this);
            object->deleteLater();
        }
    };
    if (m_dataPlane) {
        m_dataPlane->setTransport(nullptr);
    }
    if (m_transport) {
        m_transport->close();
    }
    retire(m_transport);
    retire(m_dataPlane);
    m_keyExchange.reset();
    m_sessionId.clear();
    m_peerId.clear();
    m_transportMethod.clear();
    m_role = SessionRole::None;
}

} // namespace corvane
