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
const Call kComplete = [](ApiClient& api) {
    api.completeSession(u"s-1"_s, u"relay"_s, u"node"_s);
};
const Call kClose = [](ApiClient& api) {
    api.closeSession(u"s-1"_s, u"user_disconnect"_s, 1LL << 53 | 1);
};
const std::string kCompleteUnanswered =
    "requestError|/sessions/.../complete|0|Session complete failed";

TEST_F(ApiClientTest, WhatIsUnknownIsLeftOutAndTheServersPathDoesNotCount) {
    m_server.misbehaviour().setReply(QString(), {.body = "{}"});
    m_api.setServerUrl(QUrl(m_server.url().toString() + u"/a/path/of/its/own"_s));
    m_api.setClientId(u"123456789"_s);
    const std::tuple<Call, const char*, const char*> cases[] = {
        {[](ApiClient& api) { api.autoRegister(kNone, kNone, kNone); }, "/auth/auto-register",
         R"({"agent_version":""})"},
        {[](ApiClient& api) { api.createSession(kNone, kNone, kNone, kNone); }, "/sessions/create",
         R"({"master_client_id":"123456789","target_client_id":""})"},
        {[](ApiClient& api) { api.handshakeAck(u"s 1?"_s, kNone, kNone, kNone); },
         "/sessions/s 1?/handshake-ack", R"({"target_client_id":"123456789"})"},
        {kClose, "/sessions/s-1/close",
         R"({"reason":"user_disconnect","transferred_bytes":9007199254740993})"},
        {[](ApiClient& api) { api.sendHeartbeat(kNone, kNone, kNone); }, "/clients/heartbeat",
         R"({"agent_version":"1.32","client_id":"123456789"})"},
    };
    for (const auto& [call, path, body] : cases) {
        call(m_api);
        m_signals.next();
        const auto request = m_server.requests().constLast();
        EXPECT_EQ(request.path.toStdString(), path);
        EXPECT_EQ(request.body.toStdString(), body);
    }
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
    };
    for (const auto& [reply, call, outcome] : cases) {
        m_server.misbehaviour().setReply(QString(), reply);
        call(m_api);
        EXPECT_EQ(m_signals.next(), outcome);
    }
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
