#include "ServerFixture.h"

namespace corvane::devserver {
namespace {

const QString kEnrol = u"/auth/auto-register"_s;

using ServerTest = ServerFixture;

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

TEST_F(ServerTest, RefusesOtherThanLoopbackAndTakenPorts) {
    QString error;
    EXPECT_FALSE(DevServer().start({.address = QHostAddress::AnyIPv4}, &error));
    EXPECT_EQ(error, u"0.0.0.0 is not a loopback address"_s);
    EXPECT_FALSE(DevServer().start({.relayPort = m_server.relayPort(), .stunPort = 0}, &error));
    EXPECT_TRUE(error.contains(QString::number(m_server.relayPort()))) << qPrintable(error);
}

} // namespace
} // namespace corvane::devserver
