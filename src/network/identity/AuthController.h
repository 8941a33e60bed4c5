#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>
#include <cstdint>

namespace corvane {

class ApiClient;
class HeartbeatService;
class SettingsController;
class SignalingClient;

/// How often the controller acts by itself.
struct AuthIntervals {
    std::chrono::milliseconds retry = std::chrono::seconds(20);
    std::chrono::milliseconds pairingCode = std::chrono::minutes(5);
};

/// Gives the device its identity on the server: registers it on the first start, logs it in later
/// on, and retries until it succeeds. Owns the session password and the pairing code by which a
/// viewer reaches this machine, and tells the server both. Main thread only.
class AuthController : public QObject {
    Q_OBJECT

public:
    /// Borrows the four services, which must outlive it. The session password and the first
    /// pairing code are there on return; nothing is sent before `start`.
    AuthController(ApiClient* api, SignalingClient* signaling, HeartbeatService* heartbeat,
                   SettingsController* settings, QObject* parent = nullptr,
                   AuthIntervals intervals = AuthIntervals());

    /// The first rule of the password policy that `password` breaks, as a translated sentence;
    /// empty when it is acceptable.
    static QString validatePassword(const QString& password);

    QString sessionPassword() const { return m_sessionPassword; }

    /// Changes, stores and publishes the password. It is taken as it is: `validatePassword` first.
    void setSessionPassword(const QString& password);

    /// Six digits.
    QString pairingCode() const { return m_pairingCode; }

    /// True from the first successful login or registration on.
    bool isAuthenticated() const { return m_authenticated; }

public Q_SLOTS:
    /// Logs in with the stored credentials, or registers when there are none.
    void start();

    void regeneratePairingCode();

Q_SIGNALS:
    void pairingCodeChanged(QString code);
    void authenticated(QString clientId);
    void authenticationFailed(QString error);
    void loggedOut();

private Q_SLOTS:
    void onAutoRegisterSuccess(const QString& clientId, const QString& deviceSecret,
                               const QString& token);
    void onAuthSuccess(const QString& clientId, const QString& token);
    void onAuthError(const QString& error);
    void onSignalingConnected();

private:
    void registerDevice();
    void completeAuthentication(const QString& clientId);
    void clearCredentials();
    void sendSessionPassword();
    void sendPairingCode();

    ApiClient* m_api;
    SignalingClient* m_signaling;
    HeartbeatService* m_heartbeat;
    SettingsController* m_settings;
    bool m_authenticated = false;
    QString m_sessionPassword;
    QString m_pairingCode;
    QTimer m_retryTimer;
    QTimer m_pairingCodeTimer;
    int32_t m_failureCount = 0;
};

} // namespace corvane
