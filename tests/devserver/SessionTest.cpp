#include "ServerFixture.h"

#include <QNetworkDatagram>
#include <QUdpSocket>

using namespace Qt::StringLiterals;

namespace corvane::devserver {
namespace {

using RestSessions = ServerFixture;

TEST_F(RestSessions, AFingerprintKeepsItsIdAndOnlyTheLatestSecretLogsIn) {
    const auto enrol = [&](const QString& fingerprint) {
        return call("POST", u"/auth/auto-register"_s, {{u"machine_fingerprint"_s, fingerprint}})
            .json();
    };
    const QJsonObject first = enrol(u"print"_s);
    const QJsonObject again = enrol(u"print"_s);
    EXPECT_EQ(first["client_id"_L1], again["client_id"_L1]);
    EXPECT_NE(first["device_secret"_L1], again["device_secret"_L1]);
    EXPECT_NE(enrol(u""_s)["client_id"_L1], enrol(u""_s)["client_id"_L1]);
    EXPECT_EQ(first["client_id"_L1].toString().size(), 9);

    const auto login = [&](const QJsonObject& device) {
        return call("POST", u"/auth/auto-login"_s,
                    {{u"client_id"_s, device["client_id"_L1]},
                     {u"device_secret"_s, device["device_secret"_L1]}});
    };
    const HttpResult stale = login(first);
    EXPECT_EQ(stale.status, 401);
    EXPECT_EQ(stale.detail(), u"Invalid device credentials"_s);

    const QString token = login(again).json()["token"_L1].toString();
    EXPECT_EQ(call("POST", u"/clients/heartbeat"_s, {}, token).status, 200);
    for (const QString& wrong : {u""_s, u"guess"_s}) {
        const HttpResult refused = call("POST", u"/clients/heartbeat"_s, {}, wrong);
        EXPECT_EQ(refused.status, 401);
        EXPECT_EQ(refused.detail(), u"Not authenticated"_s);
    }
    EXPECT_EQ(m_server.requests().last().authorization, "Bearer guess");
}

TEST_F(RestSessions, CreationIsRefusedForTheReasonThatApplies) {
    const auto master = onlineDevice();
    const auto target = onlineDevice();
    const auto unpublished = connectSignaling(m_server.registerDevice());
    const Device offline = m_server.registerDevice();
    struct Case {
        QString target, password;
        int status;
        QString detail;
    };
    const Case cases[] = {
        {u"000000000"_s, u"Password1"_s, 404, u"Target client is not available"_s},
        {offline.clientId, u"Password1"_s, 409, u"Target client is offline"_s},
        {target->device.clientId, u"password1"_s, 403, u"Invalid session password"_s},
        {unpublished->device.clientId, u""_s, 403, u"Invalid session password"_s},
    };
    for (const Case& expected : cases) {
        const HttpResult result = createSession(*master, expected.target, expected.password);
        EXPECT_EQ(result.status, expected.status);
        EXPECT_EQ(result.detail(), expected.detail);
    }

    const Partner impostor{.device = {master->device.clientId, {}, target->device.token}};
    EXPECT_EQ(createSession(impostor, target->device.clientId, u"Password1"_s).status, 403);
    EXPECT_TRUE(target->pushed.isEmpty());
}

TEST_F(RestSessions, ASessionRunsFromCreationToCloseForItsTwoSidesOnly) {
    const auto master = onlineDevice();
    const auto target = onlineDevice();
    const auto stranger = onlineDevice();
    const HttpResult created = createSession(*master, target->device.clientId, u"Password1"_s);
    ASSERT_EQ(created.status, 200);
    EXPECT_EQ(created.json()["state"_L1], u"pending"_s);
    const QString id = created.json()["session_id"_L1].toString();

    ASSERT_TRUE(waitUntil([&] { return target->pushed.size() == 1; }));
    EXPECT_EQ(target->pushed[0], (QJsonObject{{u"type"_s, u"SESSION_AUTO_ACCEPT"_s},
                                              {u"session_id"_s, id},
                                              {u"master_client_id"_s, master->device.clientId},
                                              {u"master_ecdh_public_key"_s, u"master-key"_s}}));

    const auto step = [&](const QByteArray& method, const QString& operation, const Partner& who,
                          const QString& session) {
        const HttpResult result =
            call(method, u"/sessions/%1/%2"_s.arg(session, operation),
                 {{u"target_ecdh_public_key"_s, u"target-key"_s}}, who.device.token);
        return result.status == 200 ? result.json()["state"_L1].toString()
                                    : QString::number(result.status);
    };
    EXPECT_EQ(step("POST", u"handshake-ack"_s, *master, id), u"403"_s);
    EXPECT_EQ(step("POST", u"handshake-ack"_s, *target, id), u"handshaking"_s);
    ASSERT_TRUE(waitUntil([&] { return master->pushed.size() == 1; }));
    EXPECT_EQ(master->pushed[0], (QJsonObject{{u"type"_s, u"SESSION_HANDSHAKE_ACK"_s},
                                              {u"session_id"_s, id},
                                              {u"state"_s, u"handshaking"_s},
                                              {u"target_ecdh_public_key"_s, u"target-key"_s}}));
    EXPECT_EQ(step("PATCH", u"complete"_s, *target, id), u"403"_s);
    EXPECT_EQ(step("PATCH", u"complete"_s, *master, id), u"connected"_s);
    EXPECT_EQ(step("PATCH", u"close"_s, *stranger, id), u"403"_s);
    EXPECT_EQ(step("PATCH", u"close"_s, *target, id), u"closed"_s);
    EXPECT_EQ(step("PATCH", u"complete"_s, *master, id), u"409"_s);
    EXPECT_EQ(step("PATCH", u"close"_s, *master, u"unknown"_s), u"404"_s);
}

TEST_F(RestSessions, ThePairingCodeAsksTheTargetsUser) {
    const auto target = onlineDevice();
    const auto first = onlineDevice();
    const auto second = onlineDevice();
    const HttpResult one = createSession(*first, target->device.clientId, u"123456"_s);
    const HttpResult two = createSession(*second, target->device.clientId, u"123456"_s);
    EXPECT_NE(one.json()["session_id"_L1], two.json()["session_id"_L1]);
    ASSERT_TRUE(waitUntil([&] { return target->pushed.size() == 2; }));
    EXPECT_EQ(target->pushed[0], (QJsonObject{{u"type"_s, u"SESSION_HANDSHAKE_REQUEST"_s},
                                              {u"session_id"_s, one.json()["session_id"_L1]},
                                              {u"master_client_id"_s, first->device.clientId},
                                              {u"purpose"_s, u"remote_desktop"_s}}));
    EXPECT_EQ(target->pushed[1]["master_client_id"_L1], second->device.clientId);
}

TEST_F(RestSessions, PublicPagesAndStunTellTheCallersAddress) {
    EXPECT_EQ(call("GET", u"/address"_s).body.trimmed(), "127.0.0.1");
    m_server.setManifestVersion(u"9.9"_s);
    EXPECT_EQ(call("GET", u"/download/CorvaneSetup.json"_s).json()["version"_L1], u"9.9"_s);

    QUdpSocket socket;
    ASSERT_TRUE(socket.bind(QHostAddress::LocalHost));
    const QByteArray transaction = "twelve bytes";
    socket.writeDatagram("too short", m_server.address(), m_server.stunPort());
    socket.writeDatagram(QByteArray::fromHex("000100002112a442") + transaction, m_server.address(),
                         m_server.stunPort());
    ASSERT_TRUE(waitUntil([&] { return socket.hasPendingDatagrams(); }));
    const quint16 port = socket.localPort() ^ 0x2112;
    EXPECT_EQ(socket.receiveDatagram().data(),
              QByteArray::fromHex("0101000c2112a442") + transaction +
                  QByteArray::fromHex("002000080001" +
                                      QByteArray::number(port, 16).rightJustified(4, '0') +
                                      "5e12a443"));
}

} // namespace
} // namespace corvane::devserver
