#include "network/server/ApiClient.h"
#include "SignalLines.h"
#include "network/CannedServer.h"
#include "network/DevServerTest.h"

namespace corvane {
namespace {

using devserver::Reply;
using namespace Qt::StringLiterals;

class ApiClientTest : public test::DevServerTest {
protected:
    ApiClientTest() { m_api.setServerUrl(m_server.url()); }

    ApiClient m_api;
    test::SignalLines m_signals = test::SignalLines(
        m_api, &ApiClient::autoRegisterSuccess, &ApiClient::authSuccess, &ApiClient::authError,
        &ApiClient::heartbeatSent, &ApiClient::sessionCreated, &ApiClient::sessionUpdated,
        &ApiClient::requestError);
};

using Call = void (*)(ApiClient&);

const QString kNone;
const Call kLogin = [](ApiClient& api) {
    api.autoLogin(u"123456789"_s, u"secret"_s);
};
const Call kEnrol = [](ApiClient& api) {
    api.autoRegister(u"host"_s, u"1.32"_s, u"print"_s);
};
const Call kCreate = [](ApiClient& api) {
    api.createSession(u"987654321"_s, u"pw"_s, u"support"_s, u"KEY="_s);
};
const Call kAcknowledge = [](ApiClient& api) {
    api.handshakeAck(u"s-1"_s, u"KEY="_s, u"Open"_s, u"r1"_s);
};
const Call kComplete = [](ApiClient& api) {
    api.completeSession(u"s-1"_s, u"relay"_s, u"node"_s);
};
const Call kClose = [](ApiClient& api) {
    api.closeSession(u"s-1"_s, u"user_disconnect"_s, 1LL << 53 | 1);
};
const std::string kCompleteUnanswered =
    "requestError|/sessions/.../complete|0|Session complete failed";

TEST_F(ApiClientTest, RequestsAreExact) {
    m_server.misbehaviour().setReply(QString(), {.body = "{}"});
    m_api.setServerUrl(QUrl(m_server.url().toString() + u"/a/path/of/its/own"_s));
    m_api.setClientId(u"123456789"_s);
    m_api.setToken(u"tok"_s);
    const struct {
        Call call;
        const char *line, *body;
        const char* authorization = "Bearer tok";
    } cases[] = {
        {kLogin, "POST /auth/auto-login", R"({"client_id":"123456789","device_secret":"secret"})",
         ""},
        {kEnrol, "POST /auth/auto-register",
         R"({"agent_version":"1.32","client_name":"host","machine_fingerprint":"print"})", ""},
        {[](ApiClient& api) { api.autoRegister(kNone, kNone, kNone); }, "POST /auth/auto-register",
         R"({"agent_version":""})", ""},
        {kCreate, "POST /sessions/create",
         R"({"master_client_id":"123456789","master_ecdh_public_key":"KEY=","purpose":"support",)"
         R"("session_password":"pw","target_client_id":"987654321"})"},
        {[](ApiClient& api) { api.createSession(kNone, kNone, kNone, kNone); },
         "POST /sessions/create", R"({"master_client_id":"123456789","target_client_id":""})"},
        {kAcknowledge, "POST /sessions/s-1/handshake-ack",
         R"({"preferred_relay_id":"r1","target_client_id":"123456789",)"
         R"("target_ecdh_public_key":"KEY=","target_nat_type":"Open"})"},
        {[](ApiClient& api) { api.handshakeAck(u"s 1?"_s, kNone, kNone, kNone); },
         "POST /sessions/s 1?/handshake-ack", R"({"target_client_id":"123456789"})"},
        {kComplete, "PATCH /sessions/s-1/complete",
         R"({"connection_method":"relay","relay_node_id":"node"})"},
        {kClose, "PATCH /sessions/s-1/close",
         R"({"reason":"user_disconnect","transferred_bytes":9007199254740993})"},
        {[](ApiClient& api) { api.sendHeartbeat(u"10.0.0.2"_s, u"192.0.2.7"_s, u"Open"_s); },
         "POST /clients/heartbeat",
         R"({"agent_version":"1.32","client_id":"123456789","local_ip":"10.0.0.2",)"
         R"("nat_type":"Open","public_ip":"192.0.2.7"})"},
        {[](ApiClient& api) { api.sendHeartbeat(kNone, kNone, kNone); }, "POST /clients/heartbeat",
         R"({"agent_version":"1.32","client_id":"123456789"})"},
    };
    for (const auto& expected : cases) {
        expected.call(m_api);
        m_signals.next();
        const auto request = m_server.requests().constLast();
        EXPECT_EQ(request.method.toStdString() + ' ' + request.path.toStdString(), expected.line);
        EXPECT_EQ(request.body.toStdString(), expected.body);
        EXPECT_EQ(request.contentType, "application/json");
        EXPECT_EQ(request.authorization, expected.authorization);
    }
}

TEST_F(ApiClientTest, RegistrationAndLoginKeepTheIdentity) {
    kEnrol(m_api);
    const auto parts = QString::fromStdString(m_signals.next()).split(u'|');
    ASSERT_EQ(parts.size(), 4);
    EXPECT_EQ(m_api.clientId(), parts[1]);
    EXPECT_EQ(m_api.token(), parts[3]);

    m_api.setToken(kNone);
    m_api.sendHeartbeat(kNone, kNone, kNone);
    EXPECT_TRUE(test::eventually(
        [this] { return m_log.count("warning|Heartbeat failed with status 401") == 1; }));
    EXPECT_EQ(m_server.requests().constLast().authorization, QByteArray());

    m_api.autoLogin(parts[1], parts[2]);
    const std::string loggedIn = m_signals.next();
    EXPECT_EQ(loggedIn, u"authSuccess|%1|%2"_s.arg(parts[1], m_api.token()).toStdString());
    m_api.sendHeartbeat(kNone, kNone, kNone);
    EXPECT_EQ(m_signals.next(), "heartbeatSent");
    const std::string id = parts[1].toStdString();
    EXPECT_TRUE(m_log.once("info|Auto-registered as client " + id));
    EXPECT_TRUE(m_log.once("info|Auto-login successful for client " + id));
}

TEST_F(ApiClientTest, OnlyAProperAnswerWithStatus200IsSuccess) {
    const QByteArray identity = R"({"client_id":"1","token":"t"})";
    const QByteArray padding(5 * 1024 * 1024, ' ');
    const std::string loginFailed = "authError|Auto-login failed";
    const std::string enrolFailed = "authError|Auto-registration failed";
    const std::string createFailed = "requestError|/sessions/create|";
    const std::tuple<Reply, Call, std::string> cases[] = {
        {{.body = identity}, kLogin, "authSuccess|1|t"},
        {{.status = 201, .body = identity}, kLogin, loginFailed},
        {{.body = identity + padding}, kLogin, loginFailed},
        {{.body = R"({"client_id":"1"})"}, kLogin, loginFailed},
        {{.body = R"({"client_id":1,"token":"t"})"}, kLogin, loginFailed},
        {{.body = R"({"detail":"why"})"}, kLogin, "authError|why"},
        {{.status = 401, .body = R"({"detail":"why"})"}, kLogin, "authError|why"},
        {{.status = 401, .body = R"({"detail":["why"]})"}, kLogin, loginFailed},
        {{.dropConnection = true}, kLogin, loginFailed},
        {{.body = identity}, kEnrol, enrolFailed},
        {{.status = 500, .body = "<html>"}, kEnrol, enrolFailed},
        {{.body = R"({"session_id":"s"})"}, kCreate, R"(sessionCreated|{"session_id":"s"})"},
        {{.body = "not JSON"}, kCreate, "sessionCreated|null"},
        {{.status = 204}, kCreate, createFailed + "204|Session creation failed"},
        {{.status = 404, .body = R"({"detail":"gone"})"}, kCreate, createFailed + "404|gone"},
        {{.body = R"({"state":"x"})"},
         kComplete,
         R"(sessionUpdated|{"session_id":"s-1","state":"x"})"},
        {{.body = R"({"session_id":"s-2"})"}, kComplete, R"(sessionUpdated|{"session_id":"s-2"})"},
        {{.body = "[]"}, kComplete, "sessionUpdated|[]"},
        {{.status = 404, .body = R"({"detail":"long"})" + padding}, kComplete, kCompleteUnanswered},
        {{.status = 403}, kClose, "requestError|/sessions/.../close|403|Session close failed"},
        {{.status = 403},
         kAcknowledge,
         "requestError|/sessions/.../handshake-ack|403|Handshake ACK failed"},
    };
    for (const auto& [reply, call, outcome] : cases) {
        m_server.misbehaviour().setReply(QString(), reply);
        call(m_api);
        EXPECT_EQ(m_signals.next(), outcome);
    }
    EXPECT_EQ(m_log.count("warning|Auto-login failed: why"), 2);
    EXPECT_EQ(m_log.count("warning|Auto-register failed: Auto-registration failed"), 2);
}

TEST_F(ApiClientTest, ConnectionsThatFailAreStatusZeroAndRedirectsAreNotFollowed) {
    const QUrl deaf = test::deafUrl();
    m_api.setServerUrl(deaf);
    kComplete(m_api);
    EXPECT_EQ(m_signals.next(), kCompleteUnanswered);
    EXPECT_FALSE(m_log.contains("Network error"));
    kLogin(m_api);
    EXPECT_EQ(m_signals.next(), "authError|Auto-login failed");
    EXPECT_TRUE(m_log.once("error|Network error on POST " + deaf.toString().toStdString() +
                           "/auth/auto-login: Connection refused (1)"));

    const test::CannedServer cutShort("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n{}");
    m_api.setServerUrl(cutShort.url());
    kComplete(m_api);
    EXPECT_EQ(m_signals.next(), kCompleteUnanswered);

    const test::CannedServer silent;
    ApiClient impatient(nullptr, std::chrono::milliseconds(50));
    test::SignalLines signalsOfImpatient(impatient, &ApiClient::requestError);
    impatient.setServerUrl(silent.url());
    kComplete(impatient);
    EXPECT_EQ(signalsOfImpatient.next(), kCompleteUnanswered);

    const test::CannedServer redirecting(
        "HTTP/1.1 307 Elsewhere\r\nContent-Length: 0\r\nLocation: " + m_server.url().toEncoded() +
        "/sessions/create\r\n\r\n");
    m_api.setServerUrl(redirecting.url());
    kCreate(m_api);
    EXPECT_EQ(m_signals.next(), "requestError|/sessions/create|307|Session creation failed");
    EXPECT_TRUE(m_server.requests().isEmpty());
}

} // namespace
} // namespace corvane
