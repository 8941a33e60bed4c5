#include "network/server/ApiClient.h"

#include "app/settings/DeploymentConstants.h"
#include "common/JsonFields.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QTimer>
#include <spdlog/spdlog.h>

#include <utility>

namespace corvane {

namespace {

constexpr int kStatusOk = 200;
constexpr std::chrono::seconds kFarewellLimit{1};

void put(nlohmann::json& body, const char* key, const QString& value) {
    body[key] = value.toStdString();
}

void putUnlessEmpty(nlohmann::json& body, const char* key, const QString& value) {
    if (!value.isEmpty()) {
        put(body, key, value);
    }
}

QString sessionPath(const QString& sessionId, const QString& operation) {
    return QStringLiteral("/sessions/") + sessionId + operation;
}

QString detailOf(const nlohmann::json& answer, const QString& fallback) {
    return jsonString(answer, "detail").value_or(fallback);
}

// The errors from 201 on report a complete answer with an HTTP error status.
bool arrivedWhole(const QNetworkReply& reply) {
    const auto error = reply.error();
    return error == QNetworkReply::NoError ||
           (error >= QNetworkReply::ContentAccessDenied && error != QNetworkReply::ProtocolFailure);
}

nlohmann::json parsedBody(const QByteArray& body) {
    auto json = parseJson({body.constData(), static_cast<size_t>(body.size())});
    return json.is_discarded() ? nlohmann::json() : json;
}

} // namespace

ApiClient::ApiClient(QObject* parent, std::chrono::milliseconds inactivityTimeout)
    : QObject(parent), m_inactivityTimeout(inactivityTimeout) {}

ApiClient::~ApiClient() {
    // A request starts with the event loop's next round, which at the process's end would not come.
    if (m_closure && m_closure->isRunning()) {
        QEventLoop waiting;
        m_closure->disconnect(this);
        connect(m_closure, &QNetworkReply::finished, &waiting, &QEventLoop::quit);
        QTimer::singleShot(kFarewellLimit, &waiting, &QEventLoop::quit);
        waiting.exec(QEventLoop::ExcludeUserInputEvents);
    }
}

void ApiClient::autoLogin(const QString& clientId, const QString& deviceSecret) {
    auto body = nlohmann::json::object();
    put(body, "client_id", clientId);
    put(body, "device_secret", deviceSecret);
    post(QStringLiteral("/auth/auto-login"), body, Authorization::None,
         [this](int status, const nlohmann::json& answer) { onLoginAnswer(status, answer); });
}

void ApiClient::onLoginAnswer(int status, const nlohmann::json& answer) {
    const auto clientId = jsonString(answer, "client_id");
    const auto token = jsonString(answer, "token");
    if (status != kStatusOk || !clientId || !token) {
        refuseAuthentication("Auto-login", detailOf(answer, tr("Auto-login failed")));
        return;
    }
    takeIdentity(*clientId, *token);
    spdlog::info("Auto-login successful for client {}", clientId->toStdString());
    Q_EMIT authSuccess(*clientId, *token);
}

void ApiClient::autoRegister(const QString& clientName, const QString& agentVersion,
                             const QString& machineFingerprint) {
    auto body = nlohmann::json::object();
    putUnlessEmpty(body, "client_name", clientName);
    put(body, "agent_version", agentVersion);
    putUnlessEmpty(body, "machine_fingerprint", machineFingerprint);
    post(
        QStringLiteral("/auth/auto-register"), body, Authorization::None,
        [this](int status, const nlohmann::json& answer) { onRegistrationAnswer(status, answer); });
}

void ApiClient::onRegistrationAnswer(int status, const nlohmann::json& answer) {
    const auto clientId = jsonString(answer, "client_id");
    const auto deviceSecret = jsonString(answer, "device_secret");
    const auto token = jsonString(answer, "token");
    if (status != kStatusOk || !clientId || !deviceSecret || !token) {
        refuseAuthentication("Auto-register", detailOf(answer, tr("Auto-registration failed")));
        return;
    }
    takeIdentity(*clientId, *token);
    spdlog::info("Auto-registered as client {}", clientId->toStdString());
    Q_EMIT autoRegisterSuccess(*clientId, *deviceSecret, *token);
}

void ApiClient::takeIdentity(const QString& clientId, const QString& token) {
    m_clientId = clientId;
    m_token = token;
}

void ApiClient::refuseAuthentication(const char* call, const QString& error) {
    spdlog::warn("{} failed: {}", call, error.toStdString());
    Q_EMIT authError(error);
}

void ApiClient::createSession(const QString& targetClientId, const QString& sessionPassword,
                              const QString& purpose, const QString& masterEcdhPublicKey) {
    auto body = nlohmann::json::object();
    put(body, "master_client_id", m_clientId);
    put(body, "target_client_id", targetClientId);
    putUnlessEmpty(body, "session_password", sessionPassword);
    putUnlessEmpty(body, "purpose", purpose);
    putUnlessEmpty(body, "master_ecdh_public_key", masterEcdhPublicKey);
    const auto path = QStringLiteral("/sessions/create");
    m_creation = post(
        path, body, Authorization::Bearer, [this, path](int status, const nlohmann::json& answer) {
            if (status == kStatusOk) {
                Q_EMIT sessionCreated(answer);
            } else {
                Q_EMIT requestError(path, status, detailOf(answer, tr("Session creation failed")));
            }
        });
}

void ApiClient::abandonSessionSetup() {
    for (QNetworkReply* const reply : {m_creation.data(), m_acknowledgement.data()}) {
        if (reply != nullptr && reply->isRunning()) {
            reply->disconnect(this);
            connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
        }
    }
    if (m_creation && m_creation->isRunning()) {
        m_creation->abort();
    }
}

void ApiClient::handshakeAck(const QString& sessionId, const QString& targetEcdhPublicKey,
                             const QString& targetNatType, const QString& preferredRelayId) {
    auto body = nlohmann::json::object();
    put(body, "target_client_id", m_clientId);
    putUnlessEmpty(body, "target_ecdh_public_key", targetEcdhPublicKey);
    putUnlessEmpty(body, "target_nat_type", targetNatType);
    putUnlessEmpty(body, "preferred_relay_id", preferredRelayId);
    m_acknowledgement =
        post(sessionPath(sessionId, QStringLiteral("/handshake-ack")), body, Authorization::Bearer,
             sessionUpdateHandler(sessionId, QStringLiteral("/sessions/.../handshake-ack"),
                                  tr("Handshake ACK failed")));
}

void ApiClient::completeSession(const QString& sessionId, const QString& connectionMethod,
                                const QString& relayNodeId) {
    auto body = nlohmann::json::object();
    put(body, "connection_method", connectionMethod);
    putUnlessEmpty(body, "relay_node_id", relayNodeId);
    patch(sessionPath(sessionId, QStringLiteral("/complete")), body,
          sessionUpdateHandler(sessionId, QStringLiteral("/sessions/.../complete"),
                               tr("Session complete failed")));
}

void ApiClient::closeSession(const QString& sessionId, const QString& reason,
                             qint64 transferredBytes) {
    auto body = nlohmann::json::object();
    body["transferred_bytes"] = transferredBytes;
    putUnlessEmpty(body, "reason", reason);
    m_closure = patch(sessionPath(sessionId, QStringLiteral("/close")), body,
                      sessionUpdateHandler(sessionId, QStringLiteral("/sessions/.../close"),
                                           tr("Session close failed")));
}

ApiClient::AnswerHandler ApiClient::sessionUpdateHandler(const QString& sessionId,
                                                         const QString& endpoint,
                                                         const QString& failure) {
    return [this, sessionId, endpoint, failure](int status, const nlohmann::json& answer) {
        if (status == kStatusOk) {
            nlohmann::json update = answer;
            if (update.is_object() && !jsonString(update, "session_id")) {
                put(update, "session_id", sessionId);
            }
            Q_EMIT sessionUpdated(update);
        } else {
            Q_EMIT requestError(endpoint, status, detailOf(answer, failure));
        }
    };
}

void ApiClient::sendHeartbeat(const QString& localIp, const QString& publicIp,
                              const QString& natType) {
    auto body = nlohmann::json::object();
    put(body, "client_id", m_clientId);
    putUnlessEmpty(body, "local_ip", localIp);
    putUnlessEmpty(body, "public_ip", publicIp);
    putUnlessEmpty(body, "nat_type", natType);
    body["agent_version"] = deployment::kApplicationVersion;
    post(QStringLiteral("/clients/heartbeat"), body, Authorization::Bearer,
         [this](int status, const nlohmann::json&) {
             if (status == kStatusOk) {
                 Q_EMIT heartbeatSent();
             } else {
                 spdlog::warn("Heartbeat failed with status {}", status);
             }
         });
}

QNetworkReply* ApiClient::post(const QString& path, const nlohmann::json& body,
                               Authorization authorization, AnswerHandler handler) {
    QNetworkReply* reply =
        m_network.post(request(path, authorization), QByteArray::fromStdString(jsonText(body)));
    connect(reply, &QNetworkReply::finished, this, [reply] {
        if (reply->error() != QNetworkReply::NoError) {
            spdlog::error("Network error on POST {}: {} ({})",
                          reply->url().toString().toStdString(), reply->errorString().toStdString(),
                          static_cast<int>(reply->error()));
        }
    });
    awaitAnswer(reply, std::move(handler));
    return reply;
}

QNetworkReply* ApiClient::patch(const QString& path, const nlohmann::json& body,
                                AnswerHandler handler) {
    QNetworkReply* reply = m_network.sendCustomRequest(
        request(path, Authorization::Bearer), "PATCH", QByteArray::fromStdString(jsonText(body)));
    awaitAnswer(reply, std::move(handler));
    return reply;
}

QNetworkRequest ApiClient::request(const QString& path, Authorization authorization) const {
    QUrl url = m_serverUrl;
    url.setPath(path, QUrl::DecodedMode);
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setTransferTimeout(static_cast<int>(m_inactivityTimeout.count()));
    if (authorization == Authorization::Bearer && !m_token.isEmpty()) {
        request.setRawHeader("Authorization", "Bearer " + m_token.toUtf8());
    }
    return request;
}

void ApiClient::awaitAnswer(QNetworkReply* reply, AnswerHandler handler) {
    connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > kMaxApiAnswerBytes) {
            reply->abort();
        }
    });
    connect(reply, &QNetworkReply::finished, this, [reply, handler = std::move(handler)] {
        reply->deleteLater();
        if (!arrivedWhole(*reply)) {
            handler(0, nlohmann::json());
            return;
        }
        const int status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        handler(status, parsedBody(reply->readAll()));
    });
}

} // namespace corvane
