#include "ServerFixture.h"

#include <QTcpSocket>

namespace corvane::devserver {
namespace {

const QString kEnrol = u"/auth/auto-register"_s;

using ServerTest = ServerFixture;

TEST_F(ServerTest, AFingerprintKeepsItsIdAndOnlyTheLatestSecretLogsIn) {
    const QByteArray print = R"({"machine_fingerprint":"print"})";
    const HttpResult first = call("POST", kEnrol, print);
    const HttpResult again = call("POST", kEnrol, print);
    EXPECT_EQ(first.field("client_id"), again.field("client_id"));
    EXPECT_NE(call("POST", kEnrol).field("client_id"), call("POST", kEnrol).field("client_id"));

    const auto login = [&](const HttpResult& enrolled) {
        return call("POST", u"/auth/auto-login"_s, enrolled.body);
    };
    EXPECT_EQ(login(first).status, 401);
    EXPECT_EQ(login(first).field("detail"), u"Invalid device credentials"_s);
    const QString token = login(again).field("token");
    EXPECT_EQ(call("POST", u"/clients/heartbeat"_s, "{}", token).status, 200);
    for (const QString& wrong : {u""_s, u"guess"_s}) {
        EXPECT_EQ(call("POST", u"/clients/heartbeat"_s, "{}", wrong).status, 401);
    }
}

TEST_F(ServerTest, OnlyADevicesOwnTokenBringsItOnline) {
    const Device device = m_server.registerDevice();
    Device thief = m_server.registerDevice();
    thief.clientId = device.clientId;
    EXPECT_TRUE(connectSignaling(thief)->pushed[0].contains(u"AUTH_FAIL"_s));
    EXPECT_FALSE(m_server.isOnline(device.clientId));

    const auto first = connectSignaling(device);
    EXPECT_TRUE(first->pushed[0].contains(u"AUTH_OK"_s));
    const auto second = connectSignaling(device);
    EXPECT_TRUE(eventually([&] { return first->isClosed(); }));
    m_server.pushText(device.clientId, u"{}"_s);
    EXPECT_TRUE(eventually([&] { return second->pushed.size() == 2; }));
}

TEST_F(ServerTest, ASessionBelongsToItsTwoSidesOnly) {
    const auto master = onlineDevice();
    const auto target = onlineDevice();
    const auto stranger = onlineDevice();
    const auto unpublished = connectSignaling(m_server.registerDevice());
    const Partner impostor{.device = {master->device.clientId, {}, target->device.token}};
    EXPECT_EQ(createSession(impostor, target->device.clientId).status, 403);
    EXPECT_EQ(createSession(*master, unpublished->device.clientId, u""_s).status, 403);

    const QString id = createSession(*master, target->device.clientId).field("session_id");
    const struct {
        const char *method, *operation;
        const Partner& who;
        QString session;
        int status;
        const char* state;
    } steps[] = {
        {"POST", "handshake-ack", *master, id, 403, ""},
        {"POST", "handshake-ack", *target, id, 200, "handshaking"},
        {"PATCH", "complete", *target, id, 403, ""},
        {"PATCH", "complete", *master, id, 200, "connected"},
        {"PATCH", "close", *stranger, id, 403, ""},
        {"PATCH", "close", *target, id, 200, "closed"},
        {"PATCH", "complete", *master, id, 409, ""},
        {"PATCH", "close", *master, u"unknown"_s, 404, ""},
    };
    for (const auto& step : steps) {
        const QString path = u"/sessions/%1/%2"_s.arg(step.session, QLatin1String(step.operation));
        const HttpResult result =
            call(step.method, path, R"({"target_ecdh_public_key":"k"})", step.who.device.token);
        EXPECT_EQ(result.status, step.status) << step.operation;
        EXPECT_EQ(result.field("state"), QLatin1String(step.state)) << step.operation;
    }
}

TEST_F(ServerTest, IceMessagesPassBetweenTheTwoSidesOfTheirSessionOnly) {
    const auto master = onlineDevice();
    const auto target = onlineDevice();
    const auto stranger = onlineDevice();
    const QString id = createSession(*master, target->device.clientId).field("session_id");
    ASSERT_TRUE(eventually([&] { return target->pushed.size() == 1; }));
    target->pushed.clear();

    const QString offer = uR"({"from_client_id":"%1","sdp":"v=0","session_id":"%2","type":"%3"})"_s;
    const auto send = [&](Partner& from, const Partner& to, const QString& session,
                          const QString& type) {
        from.send(uR"({"type":"%1","session_id":"%2","target_client_id":"%3","sdp":"v=0"})"_s.arg(
            type, session, to.device.clientId));
    };
    send(*stranger, *target, id, u"ICE_OFFER"_s);
    send(*master, *stranger, id, u"ICE_OFFER"_s);
    send(*master, *target, u"other"_s, u"ICE_OFFER"_s);
    send(*master, *target, id, u"SESSION_AUTO_ACCEPT"_s);
    master->send(u"[broken"_s);
    master->send(uR"({"type":7,"session_id":{}})"_s);
    send(*master, *target, id, u"ICE_OFFER"_s);
    send(*target, *master, id, u"ICE_ANSWER"_s);
    ASSERT_TRUE(eventually([&] { return !target->pushed.isEmpty() && !master->pushed.isEmpty(); }));
    EXPECT_EQ(target->pushed, QStringList(offer.arg(master->device.clientId, id, u"ICE_OFFER"_s)));
    EXPECT_EQ(master->pushed, QStringList(offer.arg(target->device.clientId, id, u"ICE_ANSWER"_s)));
    EXPECT_TRUE(stranger->pushed.isEmpty());
}

TEST_F(ServerTest, TheControlRequestAppliesAllOrNothing) {
    const auto misbehave = [this](const char* json) {
        return call("POST", u"/devserver/misbehave"_s, json).status;
    };
    EXPECT_EQ(misbehave(R"({"reply":{"path":"/auto-register","status":500},"reject_auth":true})"),
              200);
    for (const char* wrong :
         {R"({"clear":true,"unknown":1})", R"({"clear":true,"relay":"explode"})", "[]", "{}",
          R"({"clear":true,"reply":{"path":"/x","status":99}})",
          R"({"clear":true,"reply":{"path":"/x","stat":200}})"}) {
        EXPECT_EQ(misbehave(wrong), 400) << wrong;
    }
    EXPECT_EQ(call("POST", kEnrol).status, 500);
    EXPECT_EQ(misbehave(R"({"clear":true,"relay":"refuse","manifest_version":"7"})"), 200);
    EXPECT_EQ(call("POST", kEnrol).status, 200);
    EXPECT_FALSE(m_server.misbehaviour().rejectsAuth());
}

TEST_F(ServerTest, RefusesOtherThanLoopbackAndTakenPorts) {
    QString error;
    EXPECT_FALSE(DevServer().start({.address = QHostAddress::AnyIPv4}, &error));
    EXPECT_EQ(error, u"0.0.0.0 is not a loopback address"_s);
    EXPECT_FALSE(DevServer().start({.relayPort = m_server.relayPort(), .stunPort = 0}, &error));
    EXPECT_TRUE(error.contains(QString::number(m_server.relayPort()))) << qPrintable(error);
}

TEST_F(ServerTest, HostileBytesNeitherCrashNorFillIt) {
    const QByteArray longPost = "POST /auth/auto-register HTTP/1.1\r\n"
                                "Content-Length: 99999999999\r\n\r\n";
    for (const QByteArray& bytes :
         {QByteArray(2'000'000, '\0'), longPost + QByteArray(2'000'000, 'x')}) {
        QTcpSocket socket;
        socket.connectToHost(m_server.address(), m_server.httpPort());
        ASSERT_TRUE(socket.waitForConnected());
        socket.write(bytes);
        socket.flush();
        EXPECT_EQ(call("POST", kEnrol).status, 200);
    }
    const auto client = connectSignaling(m_server.registerDevice());
    client->send(QString(2'000'000, u'x'));
    EXPECT_TRUE(eventually([&] { return !m_server.isOnline(client->device.clientId); }));
}

} // namespace
} // namespace corvane::devserver
