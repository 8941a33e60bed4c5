#include "ProtocolExamples.h"

#include "DocumentedKeys.h"
#include "common/JsonFields.h"
#include "network/DevServerTest.h"
#include "network/identity/MachineFingerprint.h"
#include "network/server/ApiClient.h"
#include "network/server/SignalLines.h"
#include "network/server/SignalingClient.h"
#include "network/updates/UpdateService.h"
#include "session/SessionManager.h"

#include <gtest/gtest.h>

namespace corvane::docs {
namespace {

using namespace Qt::StringLiterals;

/// A server that answers as an example says.
class AnsweringServer {
public:
    QUrl url() const { return m_server.url(); }

    void setAnswer(const QString& path, int status, const QByteArray& body) {
        m_server.misbehaviour().setReply(path, {.status = status, .body = body});
    }

    /// The first request for the path.
    devserver::DevServer::Request received(const QString& path) const {
        for (const auto& request : m_server.requests()) {
            if (request.path == path) {
                return request;
            }
        }
        return {};
    }

private:
    test::FreePortServer m_server;
};

/// What the program makes its requests with.
struct Program {
    ApiClient api;
    SignalingClient signaling;
    SessionManager session{&api, &signaling};
};

using Call = std::function<void(Program& program)>;

/// A key that is drawn anew for every session: in its place, the request shows the documented one.
void showDocumentedKey(nlohmann::json& body, const char* field, const QString& documented) {
    if (const auto key = jsonString(body, field)) {
        EXPECT_EQ(key->size(), documented.size());
        body[field] = documented.toStdString();
    }
}

/// Makes the call, as the viewer unless `call` changes that, and compares the request with the
/// example's, and what becomes of its answer with `heard`, a signal as in `SignalLines`.
void compare(const Example& example, const Call& call, const QString& heard) {
    const HttpExchange exchange(example);
    AnsweringServer server;
    server.setAnswer(exchange.path, exchange.status, exchange.answer);
    Program program;
    program.api.setServerUrl(server.url());
    program.api.setClientId(u"482915637"_s);
    if (!exchange.path.startsWith(u"/auth/"_s)) {
        program.api.setToken(u"t0k3n"_s);
    }
    test::SignalLines lines(program.api, &ApiClient::autoRegisterSuccess, &ApiClient::authSuccess,
                            &ApiClient::authError, &ApiClient::heartbeatSent,
                            &ApiClient::sessionCreated, &ApiClient::sessionUpdated,
                            &ApiClient::requestError);
    call(program);
    EXPECT_EQ(lines.next(), heard.toStdString());
    const auto request = server.received(exchange.path);
    EXPECT_EQ(request.method, exchange.method);
    EXPECT_EQ(request.authorization, exchange.authorization);
    EXPECT_EQ(request.contentType, "application/json");
    auto body = parseJson(request.body.toStdString());
    showDocumentedKey(body, "master_ecdh_public_key", viewerPublicKey());
    showDocumentedKey(body, "target_ecdh_public_key", sharedMachinePublicKey());
    EXPECT_EQ(body, exchange.body);
}

void compareManifest(const Example& example) {
    AnsweringServer server;
    server.setAnswer(u"/download/CorvaneSetup.json"_s, 200, example.text);
    UpdateOptions options;
    const QString path = options.manifestUrl.path();
    options.manifestUrl = server.url().resolved(QUrl(path));
    UpdateService service(nullptr, options);
    test::SignalLines lines(service, &UpdateService::updateAvailable);
    service.checkForUpdates();
    EXPECT_EQ(lines.next(),
              "updateAvailable|2.0|"
              "https://download.corvane.example/download/CorvaneSetup.zip|Faster pictures.");
    EXPECT_EQ(example.json().size(), 3U);
}

void compareError(const Example& example) {
    AnsweringServer server;
    server.setAnswer(u"/sessions/create"_s, 403, example.text);
    ApiClient api;
    api.setServerUrl(server.url());
    test::SignalLines lines(api, &ApiClient::requestError);
    api.createSession({}, {}, {}, {});
    EXPECT_EQ(lines.next(), "requestError|/sessions/create|403|Invalid session password");
    EXPECT_EQ(example.json().size(), 1U);
}

Check exchange(const Call& call, const QString& heard) {
    return [call, heard](const Example& example) {
        compare(example, call, heard);
    };
}

/// As the shared machine, asked by the viewer of the other examples.
void acceptSession(Program& program) {
    program.api.setClientId(u"730164285"_s);
    program.session.acceptSession(u"7f1c"_s, u"482915637"_s, {});
}

} // namespace

Checks restChecks() {
    return {
        {"json error-answer", compareError},
        {"json update-manifest", compareManifest},
        {"http rest-auto-register",
         exchange(
             [](Program& program) {
                 program.api.autoRegister(
                     u"study"_s, u"1.32"_s,
                     MachineFingerprint::of(u"0123456789abcdef0123456789abcdef"_s));
             },
             u"autoRegisterSuccess|482915637|s3cr3t|t0k3n"_s)},
        {"http rest-auto-login",
         exchange([](Program& program) { program.api.autoLogin(u"482915637"_s, u"s3cr3t"_s); },
                  u"authSuccess|482915637|t0k3n"_s)},
        {"http rest-heartbeat", exchange(
                                    [](Program& program) {
                                        program.api.sendHeartbeat(u"192.168.1.20"_s,
                                                                  u"203.0.113.7"_s,
                                                                  u"PortRestricted"_s);
                                    },
                                    u"heartbeatSent"_s)},
        {"http rest-create-session",
         exchange(
             [](Program& program) {
                 program.session.initiateSession(u"730164285"_s, u"Passw0rd"_s);
             },
             u"sessionCreated|{\"session_id\":\"7f1c\",\"state\":\"pending\"}"_s)},
        {"http rest-handshake-ack",
         exchange(acceptSession,
                  u"sessionUpdated|{\"session_id\":\"7f1c\",\"state\":\"handshaking\"}"_s)},
        {"http rest-complete-session",
         exchange([](Program& program) { program.api.completeSession(u"7f1c"_s, u"relay"_s, {}); },
                  u"sessionUpdated|{\"session_id\":\"7f1c\",\"state\":\"connected\"}"_s)},
        {"http rest-close-session",
         exchange(
             [](Program& program) {
                 acceptSession(program);
                 program.session.endSession(u"user_disconnect"_s);
             },
             u"sessionUpdated|{\"session_id\":\"7f1c\",\"state\":\"closed\"}"_s)},
    };
}

} // namespace corvane::docs
