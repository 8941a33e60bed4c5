#pragma once

#include "network/server/HttpLimits.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkRequest>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QUrl>
#include <nlohmann/json.hpp>

#include <chrono>
#include <functional>

namespace corvane {

/// The central server's REST API. Every call sends one request and returns at once; the answer
/// arrives as a signal. Requests may overlap. Nothing is retried. Main thread only.
///
/// Only status 200 is success. An answer that does not come, is cut short or is larger than
/// `kMaxApiAnswerBytes` counts as status 0 with no body. Redirects are not followed: the bearer
/// token goes to the configured server and nowhere else.
class ApiClient : public QObject {
    Q_OBJECT

public:
    /// `inactivityTimeout`: how long a request may go without any progress.
    explicit ApiClient(QObject* parent = nullptr,
                       std::chrono::milliseconds inactivityTimeout = kMaxServerSilence);

    /// Waits a second at most for the server to take the last close request if it is under way,
    /// with the event loop running.
    ~ApiClient() override;

    /// Scheme, host and port of the server; a path in it is ignored.
    QUrl serverUrl() const { return m_serverUrl; }
    void setServerUrl(const QUrl& url) { m_serverUrl = url; }

    /// The bearer token, empty until a login or registration succeeds.
    QString token() const { return m_token; }
    void setToken(const QString& token) { m_token = token; }

    /// This device's client ID, empty until known.
    QString clientId() const { return m_clientId; }
    void setClientId(const QString& clientId) { m_clientId = clientId; }

    /// Answered by `authSuccess` or `authError`; a success also sets token and client ID.
    void autoLogin(const QString& clientId, const QString& deviceSecret);

    /// Answered by `autoRegisterSuccess` or `authError`; a success also sets token and client ID.
    void autoRegister(const QString& clientName, const QString& agentVersion,
                      const QString& machineFingerprint);

    /// Answered by `sessionCreated` or `requestError`.
    void createSession(const QString& targetClientId, const QString& sessionPassword,
                       const QString& purpose, const QString& masterEcdhPublicKey);

    /// The answers to the last `createSession` and the last `handshakeAck` go unheard if they are
    /// still to come. An acknowledgement under way still reaches the server.
    void abandonSessionSetup();

    /// The calls below are answered by `sessionUpdated` or `requestError`. An update carries the
    /// `session_id` of its call where the server's answer has none.
    void handshakeAck(const QString& sessionId, const QString& targetEcdhPublicKey,
                      const QString& targetNatType, const QString& preferredRelayId);
    void completeSession(const QString& sessionId, const QString& connectionMethod,
                         const QString& relayNodeId);
    void closeSession(const QString& sessionId, const QString& reason, qint64 transferredBytes);

    /// Answered by `heartbeatSent`; a failure is only logged.
    void sendHeartbeat(const QString& localIp, const QString& publicIp, const QString& natType);

Q_SIGNALS:
    void autoRegisterSuccess(QString clientId, QString deviceSecret, QString token);
    void authSuccess(QString clientId, QString token);
    void authError(QString error);
    void heartbeatSent();
    void sessionCreated(nlohmann::json sessionData);
    void sessionUpdated(nlohmann::json sessionData);
    void clientInfoReceived(nlohmann::json clientData);

    /// A session call failed. `endpoint` names the call with "..." for the session ID; `statusCode`
    /// is 0 when no answer arrived; `detail` is the server's explanation or a fixed text.
    void requestError(QString endpoint, int statusCode, QString detail);

private:
    enum class Authorization { None, Bearer };
    using AnswerHandler = std::function<void(int status, const nlohmann::json& answer)>;

    QNetworkReply* post(const QString& path, const nlohmann::json& body,
                        Authorization authorization, AnswerHandler handler);
    QNetworkReply* patch(const QString& path, const nlohmann::json& body, AnswerHandler handler);
    QNetworkRequest request(const QString& path, Authorization authorization) const;
    void awaitAnswer(QNetworkReply* reply, AnswerHandler handler);

    void onLoginAnswer(int status, const nlohmann::json& answer);
    void onRegistrationAnswer(int status, const nlohmann::json& answer);
    void takeIdentity(const QString& clientId, const QString& token);
    void refuseAuthentication(const char* call, const QString& error);
    AnswerHandler sessionUpdateHandler(const QString& sessionId, const QString& endpoint,
                                       const QString& failure);

    QUrl m_serverUrl;
    QNetworkAccessManager m_network;
    QString m_token;
    QString m_clientId;
    QPointer<QNetworkReply> m_creation;        ///< of the last session asked for
    QPointer<QNetworkReply> m_acknowledgement; ///< of the last session accepted
    QPointer<QNetworkReply> m_closure;         ///< of the last session closed
    std::chrono::milliseconds m_inactivityTimeout;
};

} // namespace corvane
