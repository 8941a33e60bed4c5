#include "network/identity/AuthController.h"

#include "app/settings/DeploymentConstants.h"
#include "app/settings/SettingsController.h"
#include "network/identity/MachineFingerprint.h"
#include "network/identity/PairingCodeGenerator.h"
#include "network/identity/PasswordPolicy.h"
#include "network/identity/SessionPasswordGenerator.h"
#include "network/reachability/HeartbeatService.h"
#include "network/server/ApiClient.h"
#include "network/server/SignalingClient.h"

#include <QSysInfo>
#include <spdlog/spdlog.h>

namespace corvane {

namespace {

constexpr int32_t kFailuresBeforeClearing = 3;
constexpr int kHeartbeatIntervalMs = 30'000;

bool isCredentialError(const QString& error) {
    return error.contains(QStringLiteral("Invalid device credentials"), Qt::CaseInsensitive) ||
           error.contains(QStringLiteral("authentication"), Qt::CaseInsensitive);
}

QString initialSessionPassword(const SettingsController& settings) {
    const QString stored = settings.sessionPassword();
    const bool usable = !stored.isEmpty() && PasswordPolicy::firstViolation(stored).isEmpty();
    return usable ? stored : generateSessionPassword();
}

} // namespace

AuthController::AuthController(ApiClient* api, SignalingClient* signaling,
                               HeartbeatService* heartbeat, SettingsController* settings,
                               QObject* parent, AuthIntervals intervals)
    : QObject(parent), m_api(api), m_signaling(signaling), m_heartbeat(heartbeat),
      m_settings(settings), m_sessionPassword(initialSessionPassword(*settings)) {
    connect(m_api, &ApiClient::autoRegisterSuccess, this, &AuthController::onAutoRegisterSuccess);
    connect(m_api, &ApiClient::authSuccess, this, &AuthController::onAuthSuccess);
    connect(m_api, &ApiClient::authError, this, &AuthController::onAuthError);
    connect(m_signaling, &SignalingClient::connected, this, &AuthController::onSignalingConnected);
    connect(&m_retryTimer, &QTimer::timeout, this, &AuthController::start);
    connect(&m_pairingCodeTimer, &QTimer::timeout, this, &AuthController::regeneratePairingCode);
    regeneratePairingCode();
    m_pairingCodeTimer.start(intervals.pairingCode);
    m_retryTimer.setSingleShot(true);
    m_retryTimer.setInterval(intervals.retry);
}

QString AuthController::validatePassword(const QString& password) {
    return PasswordPolicy::firstViolation(password);
}

void AuthController::setSessionPassword(const QString& password) {
    m_sessionPassword = password;
    m_settings->setSessionPassword(password);
    if (m_signaling->isConnected()) {
        sendSessionPassword();
        spdlog::info("Updated session password sent to server");
    }
}

void AuthController::regeneratePairingCode() {
    m_pairingCode = PairingCodeGenerator::next();
    spdlog::info("Pairing code regenerated");
    Q_EMIT pairingCodeChanged(m_pairingCode);
    sendPairingCode();
}

void AuthController::start() {
    if (!m_settings->hasCredentials()) {
        registerDevice();
        return;
    }
    const QString clientId = m_settings->clientId();
    spdlog::info("Auto-login with stored client ID: {}", clientId.toStdString());
    m_api->autoLogin(clientId, m_settings->deviceSecret());
}

void AuthController::registerDevice() {
    spdlog::info("First launch — auto-registering...");
    const QString fingerprint = MachineFingerprint::generate();
    if (fingerprint.isEmpty()) {
        spdlog::warn("Could not generate machine fingerprint; ID will not survive reinstalls");
    }
    m_api->autoRegister(QSysInfo::machineHostName(),
                        QString::fromLatin1(deployment::kApplicationVersion), fingerprint);
}

void AuthController::onAutoRegisterSuccess(const QString& clientId, const QString& deviceSecret,
                                           const QString&) {
    m_retryTimer.stop();
    m_failureCount = 0;
    m_settings->setClientId(clientId);
    m_settings->setDeviceSecret(deviceSecret);
    spdlog::info("Auto-registration successful. Client ID: {}", clientId.toStdString());
    completeAuthentication(clientId);
}

void AuthController::onAuthSuccess(const QString& clientId, const QString&) {
    m_retryTimer.stop();
    m_failureCount = 0;
    spdlog::info("Auto-login successful. Client ID: {}", clientId.toStdString());
    completeAuthentication(clientId);
}

void AuthController::completeAuthentication(const QString& clientId) {
    m_authenticated = true;
    m_signaling->connectToServer(m_api->serverUrl(), clientId, m_api->token());
    m_heartbeat->start(kHeartbeatIntervalMs);
    Q_EMIT authenticated(clientId);
}

void AuthController::onAuthError(const QString& error) {
    ++m_failureCount;
    spdlog::warn("Authentication failed (attempt {}): {}. Retrying in 20 seconds...",
                 m_failureCount, error.toStdString());
    if (m_settings->hasCredentials()) {
        if (isCredentialError(error)) {
            spdlog::warn("Credential error — clearing stored credentials, will auto-register on "
                         "next retry");
            clearCredentials();
        } else if (m_failureCount >= kFailuresBeforeClearing) {
            spdlog::info(
                "Clearing stored credentials after {} failures — will auto-register on next retry",
                m_failureCount);
            clearCredentials();
        }
    }
    Q_EMIT authenticationFailed(error);
    m_retryTimer.start();
}

void AuthController::clearCredentials() {
    m_settings->setClientId(QString());
    m_settings->setDeviceSecret(QString());
}

void AuthController::onSignalingConnected() {
    sendSessionPassword();
    spdlog::info("Sent session password to server via WebSocket");
    sendPairingCode();
}

void AuthController::sendSessionPassword() {
    m_signaling->sendMessage(
        {{"type", "SET_PASSWORD"}, {"password", m_sessionPassword.toStdString()}});
}

void AuthController::sendPairingCode() {
    if (m_signaling->isConnected() && !m_pairingCode.isEmpty()) {
        m_signaling->sendMessage(
            {{"type", "SET_PAIRING_CODE"}, {"code", m_pairingCode.toStdString()}});
    }
}

} // namespace corvane
