#include "ApiClient.h"
#include "CannedServer.h"
#include "DevServerTest.h"
#include "JsonFields.h"

#include <QSignalSpy>

#include <functional>

namespace corvane {
namespace {

using devserver::Reply;
using namespace Qt::StringLiterals;

/// Notes every signal of a client as one line: its name, then its arguments.
class SignalLog {
public:
    explicit SignalLog(ApiClient& api) {
        QObject::connect(&api, &ApiClient::autoRegisterSuccess, &api,
                         [this](const QString& id, const QString& secret, const QString& token) {
                             add({u"autoRegisterSuccess"_s, id, secret, token});
                         });
        QObject::connect(&api, &ApiClient::authSuccess, &api,
                         [this](const QString& id, const QString& token) {
                             add({u"authSuccess"_s, id, token});
                         });
        QObject::connect(&api, &ApiClient::authError, &api, [this](const QString& error) {
            add({u"authError"_s, error});
        });
        QObject::connect(&api, &ApiClient::heartbeatSent, &api,
                         [this] { add({u"heartbeatSent"_s}); });
        QObject::connect(&api, &ApiClient::sessionCreated, &api, [this](const auto& answer) {
            add({u"sessionCreated"_s, QString::fromStdString(jsonText(answer))});
        });
        QObject::connect(&api, &ApiClient::sessionUpdated, &api, [this](const auto& answer) {
            add({u"sessionUpdated"_s, QString::fromStdString(jsonText(answer))});
        });
        QObject::connect(&api, &ApiClient::requestError, &api,
                         [this](const QString& endpoint, int status, const QString& detail) {
                             add({u"requestError"_s, endpoint, QString::number(status), detail});
                         });
    }

    /// The next signal; "nothing" when none comes.
    std::string next() {
        test::eventually([this] { return !m_lines.isEmpty(); });
        return m_lines.isEmpty() ? "nothing" : m_lines.takeFirst().toStdString();
    }

private:
    void add(const QStringList& parts) { m_lines.append(parts.join(QLatin1Char(' '))); }

    QStringList m_lines;
};

class ApiClientTest : public test::DevServerTest {
protected:
    ApiClientTest() { m_api.setServerUrl(m_server.url()); }

    /// What the next signal is when every request is answered with `reply`.
    std::string outcome(const Reply& reply, const std::function<void(ApiClient&)>& call) {
        m_server.misbehaviour().setReply(QString(), reply);
        call(m_api);
        return m_signals.next();
    }

    ApiClient m_api;
    SignalLog m_signals{m_api};
};

void login(ApiClient& api) {
    api.autoLogin(u"123456789"_s, u"secret"_s);
}

void enroll(ApiClient& api) {
    api.autoRegister(u"host"_s, u"1.32"_s, u"print"_s);
}

void create(ApiClient& api) {
    api.createSession(u"987654321"_s, u"pw"_s, u"support"_s, u"KEY="_s);
}

void complete(ApiClient& api) {
    api.completeSession(u"s-1"_s, u"relay"_s, u"node"_s);
}

TEST_F(ApiClientTest, RequestsAreExact) {
    m_server.misbehaviour().setReply(QString(), {.body = "{}"});
    m_api.setServerUrl(QUrl(m_server.url().toString() + u"/a/path/of/its/own"_s));
    m_api.setClientId(u"123456789"_s);
    m_api.setToken(u"tok"_s);
    const QString none;
    const struct {
        std::function<void()> call;
        const char *method, *path, *body;
        bool authorized = true;
    } cases[] = {
        {[&] { login(m_api); }, "POST", "/auth/auto-login",
         R"({"client_id":"123456789","device_secret":"secret"})", false},
        {[&] { m_api.autoLogin(none, none); }, "POST", "/auth/auto-login",
         R"({"client_id":"","device_secret":""})", false},
        {[&] { enroll(m_api); }, "POST", "/auth/auto-register",
         R"({"agent_version":"1.32","client_name":"host","machine_fingerprint":"print"})", false},
        {[&] { m_api.autoRegister(none, none, none); }, "POST", "/auth/auto-register",
         R"({"agent_version":""})", false},
        {[&] { create(m_api); }, "POST", "/sessions/create",
         R"({"master_client_id":"123456789","master_ecdh_public_key":"KEY=","purpose":"support",)"
         R"("session_password":"pw","target_client_id":"987654321"})"},
        {[&] { m_api.createSession(none, none, none, none); }, "POST", "/sessions/create",
         R"({"master_client_id":"123456789","target_client_id":""})"},
        {[&] { m_api.handshakeAck(u"s-1"_s, u"KEY="_s, u"Open"_s, u"r1"_s); }, "POST",
         "/sessions/s-1/handshake-ack",
         R"({"preferred_relay_id":"r1","target_client_id":"123456789",)"
         R"("target_ecdh_public_key":"KEY=","target_nat_type":"Open"})"},
        {[&] { m_api.handshakeAck(u"s 1?"_s, none, none, none); }, "POST",
         "/sessions/s 1?/handshake-ack", R"({"target_client_id":"123456789"})"},
        {[&] { complete(m_api); }, "PATCH", "/sessions/s-1/complete",
         R"({"connection_method":"relay","relay_node_id":"node"})"},
        {[&] { m_api.completeSession(u"s-1"_s, none, none); }, "PATCH", "/sessions/s-1/complete",
         R"({"connection_method":""})"},
        {[&] { m_api.closeSession(u"s-1"_s, u"user_disconnect"_s, 1LL << 53 | 1); }, "PATCH",
         "/sessions/s-1/close",
         R"({"reason":"user_disconnect","transferred_bytes":9007199254740993})"},
        {[&] { m_api.closeSession(u"s-1"_s, none, 0); }, "PATCH", "/sessions/s-1/close",
         R"({"transferred_bytes":0})"},
        {[&] { m_api.sendHeartbeat(u"10.0.0.2"_s, u"192.0.2.7"_s, u"Open"_s); }, "POST",
         "/clients/heartbeat",
         R"({"agent_version":"1.32","client_id":"123456789","local_ip":"10.0.0.2",)"
         R"("nat_type":"Open","public_ip":"192.0.2.7"})"},
        {[&] { m_api.sendHeartbeat(none, none, none); }, "POST", "/clients/heartbeat",
         R"({"agent_version":"1.32","client_id":"123456789"})"},
    };
    for (const auto& expected : cases) {
        expected.call();
        m_signals.next();
        const auto request = m_server.requests().constLast();
        EXPECT_EQ(request.method.toStdString(), expected.method);
        EXPECT_EQ(request.path.toStdString(), expected.path);
        EXPECT_EQ(request.body.toStdString(), expected.body);
        EXPECT_EQ(request.contentType, "application/json");
        EXPECT_EQ(request.authorization, expected.authorized ? "Bearer tok" : "");
    }
}

TEST_F(ApiClientTest, RegistrationAndLoginKeepTheIdentity) {
    enroll(m_api);
    const QString registered = QString::fromStdString(m_signals.next());
    const auto parts = registered.split(QLatin1Char(' '));
    ASSERT_EQ(parts.size(), 4) << registered.toStdString();
    EXPECT_EQ(m_api.clientId(), parts[1]);
    EXPECT_EQ(m_api.token(), parts[3]);

    m_api.setToken(QString());
    m_api.autoLogin(parts[1], parts[2]);
    const std::string loggedIn = m_signals.next();
    EXPECT_EQ(loggedIn,
              (u"authSuccess "_s + parts[1] + QLatin1Char(' ') + m_api.token()).toStdString());
    EXPECT_FALSE(m_api.token().isEmpty());
    m_api.sendHeartbeat({}, {}, {});
    EXPECT_EQ(m_signals.next(), "heartbeatSent");

    const std::string id = parts[1].toStdString();
    EXPECT_EQ(m_log.count("info|Auto-registered as client " + id), 1);
    EXPECT_EQ(m_log.count("info|Auto-login successful for client " + id), 1);
}

TEST_F(ApiClientTest, OnlyAProperAnswerWithStatus200IsSuccess) {
    const std::string loginFailed = "authError Auto-login failed";
    const std::string createFailed = "requestError /sessions/create ";
    const struct {
        Reply reply;
        void (*call)(ApiClient&);
        std::string outcome;
    } cases[] = {
        {{.body = R"({"client_id":"1","token":"t"})"}, login, "authSuccess 1 t"},
        {{.status = 201, .body = R"({"client_id":"1","token":"t"})"}, login, loginFailed},
        {{.body = R"({"client_id":"1"})"}, login, loginFailed},
        {{.body = R"({"client_id":1,"token":"t"})"}, login, loginFailed},
        {{.body = R"(["client_id","token"])"}, login, loginFailed},
        {{.body = R"({"detail":"why"})"}, login, "authError why"},
        {{.status = 401, .body = R"({"detail":"why"})"}, login, "authError why"},
        {{.status = 401, .body = R"({"detail":["why"]})"}, login, loginFailed},
        {{.dropConnection = true}, login, loginFailed},
        {{.body = R"({"client_id":"1","token":"t"})"},
         enroll,
         "authError Auto-registration failed"},
        {{.status = 500, .body = "<html>"}, enroll, "authError Auto-registration failed"},
        {{.body = R"({"session_id":"s","n":1})"},
         create,
         R"(sessionCreated {"n":1,"session_id":"s"})"},
        {{.body = ""}, create, "sessionCreated null"},
        {{.body = "not JSON"}, create, "sessionCreated null"},
        {{.status = 201, .body = "{}"}, create, createFailed + "201 Session creation failed"},
        {{.status = 204}, create, createFailed + "204 Session creation failed"},
        {{.status = 500, .body = "<html>"}, create, createFailed + "500 Session creation failed"},
        {{.status = 404, .body = R"({"detail":"gone"})"}, create, createFailed + "404 gone"},
        {{.dropConnection = true}, create, createFailed + "0 Session creation failed"},
        {{.body = R"({"state":"x"})"}, complete, R"(sessionUpdated {"state":"x"})"},
        {{.status = 409, .body = "{}"},
         complete,
         "requestError /sessions/.../complete 409 Session complete failed"},
        {{.status = 403},
         [](ApiClient& api) { api.closeSession(u"s"_s, {}, 0); },
         "requestError /sessions/.../close 403 Session close failed"},
        {{.status = 403},
         [](ApiClient& api) { api.handshakeAck(u"s"_s, {}, {}, {}); },
         "requestError /sessions/.../handshake-ack 403 Handshake ACK failed"},
    };
    for (const auto& expected : cases) {
        EXPECT_EQ(outcome(expected.reply, expected.call), expected.outcome);
    }
    EXPECT_EQ(m_log.count("warning|Auto-login failed: why"), 2);
    EXPECT_EQ(m_log.count("warning|Auto-register failed: Auto-registration failed"), 2);
}

TEST_F(ApiClientTest, AnOversizedAnswerIsNoAnswer) {
    const QByteArray padding(5 * 1024 * 1024, ' ');
    EXPECT_EQ(outcome({.body = R"({"client_id":"1","token":"t"})" + padding}, login),
              "authError Auto-login failed");
    EXPECT_EQ(outcome({.status = 404, .body = R"({"detail":"long"})" + padding}, complete),
              "requestError /sessions/.../complete 0 Session complete failed");
}

TEST_F(ApiClientTest, AHeartbeatWithoutTokenIsOnlyLogged) {
    m_api.sendHeartbeat({}, {}, {});
    EXPECT_TRUE(test::eventually(
        [this] { return m_log.count("warning|Heartbeat failed with status 401") == 1; }));
    EXPECT_EQ(m_server.requests().constLast().authorization, QByteArray());
}

TEST_F(ApiClientTest, OverlappingAnswersFindTheirRequests) {
    m_server.misbehaviour().setReply(u"slow/complete"_s, {.delayMs = 100, .status = 500});
    m_server.misbehaviour().setReply(u"fast/complete"_s, {.body = "{}"});
    m_api.completeSession(u"slow"_s, {}, {});
    m_api.completeSession(u"fast"_s, {}, {});
    EXPECT_EQ(m_signals.next(), "sessionUpdated {}");
    EXPECT_EQ(m_signals.next(), "requestError /sessions/.../complete 500 Session complete failed");
}

TEST_F(ApiClientTest, ConnectionsThatFailAreStatusZero) {
    const std::string failed = "requestError /sessions/.../complete 0 Session complete failed";
    const QUrl deaf = test::deafUrl();
    m_api.setServerUrl(deaf);
    complete(m_api);
    EXPECT_EQ(m_signals.next(), failed);
    EXPECT_FALSE(m_log.contains("Network error"));
    login(m_api);
    EXPECT_EQ(m_signals.next(), "authError Auto-login failed");
    EXPECT_EQ(m_log.count("error|Network error on POST " + deaf.toString().toStdString() +
                          "/auth/auto-login: Connection refused (1)"),
              1);

    const test::CannedServer cutShort("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{}");
    m_api.setServerUrl(cutShort.url());
    complete(m_api);
    EXPECT_EQ(m_signals.next(), failed);

    const test::CannedServer silent;
    ApiClient impatient(nullptr, std::chrono::milliseconds(50));
    SignalLog signalsOfImpatient(impatient);
    impatient.setServerUrl(silent.url());
    complete(impatient);
    EXPECT_EQ(signalsOfImpatient.next(), failed);
}

TEST_F(ApiClientTest, RedirectsAreNotFollowed) {
    const test::CannedServer redirecting(
        "HTTP/1.1 307 Elsewhere\r\nContent-Length: 0\r\nLocation: " + m_server.url().toEncoded() +
        "/sessions/create\r\n\r\n");
    m_api.setServerUrl(redirecting.url());
    m_api.setToken(u"tok"_s);
    create(m_api);
    EXPECT_EQ(m_signals.next(), "requestError /sessions/create 307 Session creation failed");
    EXPECT_TRUE(m_server.requests().isEmpty());
}

} // namespace
} // namespace corvane
