#include "ServerFixture.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace corvane::devserver {
namespace {

class Misbehaving : public ServerFixture {
protected:
    HttpResult misbehave(const QByteArray& json) {
        return call("POST", u"/devserver/misbehave"_s, jsonObject(json));
    }

    HttpResult enrol() { return call("POST", u"/auth/auto-register"_s); }
};

TEST_F(Misbehaving, ScriptedRepliesReplaceTheProperOneUntilCleared) {
    Misbehaviour& faults = m_server.misbehaviour();
    faults.setReply(u"/auto-register"_s, {.status = 201, .body = "<html>"});
    const HttpResult created = enrol();
    EXPECT_EQ(created.status, 201);
    EXPECT_EQ(created.body, "<html>");

    faults.setReply(u"/auto-register"_s, {.dropConnection = true});
    EXPECT_EQ(enrol().status, 0);

    faults.setReply(u"/auto-register"_s, {.delayMs = 100});
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_TRUE(enrol().json().contains("client_id"_L1));
    EXPECT_GE(elapsed.elapsed(), 99);

    faults.setReply(u"/auto-register"_s, {.status = 500});
    EXPECT_EQ(call("POST", u"/auth/auto-login"_s).status, 401);
    faults.clear();
    EXPECT_EQ(enrol().status, 200);
}

TEST_F(Misbehaving, SessionReportsAndAuthLieOnDemand) {
    const auto master = onlineDevice();
    const auto target = onlineDevice();
    const QString id = createSession(*master, target->device.clientId, u"Password1"_s)
                           .json()["session_id"_L1]
                           .toString();
    m_server.misbehaviour().setStateText(u"complete"_s, u"failed"_s);
    m_server.misbehaviour().setSessionId(u"other"_s);
    const QString complete = u"/sessions/%1/complete"_s.arg(id);
    EXPECT_EQ(call("PATCH", complete, {}, master->device.token).json(),
              (QJsonObject{{u"session_id"_s, u"other"_s}, {u"state"_s, u"failed"_s}}));
    m_server.misbehaviour().clear();
    EXPECT_EQ(call("PATCH", complete, {}, master->device.token).json(),
              (QJsonObject{{u"session_id"_s, id}, {u"state"_s, u"connected"_s}}));

    m_server.misbehaviour().setRejectAuth(true);
    EXPECT_EQ(connectSignaling(m_server.registerDevice())->pushed[0]["type"_L1], u"AUTH_FAIL"_s);
}

TEST_F(Misbehaving, TheControlRequestAppliesAllOrNothing) {
    EXPECT_EQ(
        misbehave(R"({"reply":{"path":"/auto-register","status":500},"reject_auth":true})").status,
        200);
    EXPECT_EQ(enrol().status, 500);
    for (const char* wrong :
         {R"({"clear":true,"unknown":1})", R"({"clear":true,"relay":"explode"})", R"([])", R"({})",
          R"({"clear":true,"reply":{"path":"/x","status":99}})",
          R"({"clear":true,"reply":{"path":"/x","stat":200}})"}) {
        EXPECT_EQ(misbehave(wrong).status, 400) << wrong;
    }
    EXPECT_EQ(enrol().status, 500);
    EXPECT_EQ(misbehave(R"({"clear":true,"relay":"refuse","manifest_version":"7"})").status, 200);
    EXPECT_EQ(enrol().status, 200);
    EXPECT_FALSE(m_server.misbehaviour().rejectsAuth());
}

TEST(DevServer, RefusesOtherThanLoopbackAndTakenPorts) {
    QString error;
    EXPECT_FALSE(DevServer().start({.address = QHostAddress::AnyIPv4}, &error));
    EXPECT_EQ(error, u"0.0.0.0 is not a loopback address"_s);
    DevServer first;
    ASSERT_TRUE(first.start({.relayPort = 0, .stunPort = 0}));
    EXPECT_FALSE(DevServer().start({.relayPort = first.relayPort(), .stunPort = 0}, &error));
    EXPECT_TRUE(error.contains(QString::number(first.relayPort()))) << qPrintable(error);
}

TEST_F(Misbehaving, HostileBytesNeitherCrashNorFillTheServer) {
    for (const QByteArray& bytes :
         {QByteArray(2'000'000, '\0'), QByteArray("POST /auth/auto-register HTTP/1.1\r\n"
                                                  "Content-Length: 99999999999\r\n\r\n") +
                                           QByteArray(2'000'000, 'x')}) {
        QTcpSocket socket;
        socket.connectToHost(m_server.address(), m_server.httpPort());
        ASSERT_TRUE(socket.waitForConnected());
        socket.write(bytes);
        socket.flush();
        EXPECT_EQ(enrol().status, 200);
    }
    const auto client = connectSignaling(m_server.registerDevice());
    client->socket->sendTextMessage(QString(2'000'000, u'x'));
    EXPECT_TRUE(waitUntil([&] { return !m_server.isOnline(client->device.clientId); }));
}

} // namespace
} // namespace corvane::devserver
