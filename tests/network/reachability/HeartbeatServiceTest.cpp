#include "network/reachability/HeartbeatService.h"
#include "devserver/StunResponder.h"
#include "network/DevServerTest.h"
#include "network/server/ApiClient.h"
#include "network/server/HttpFetch.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QUdpSocket>

namespace corvane {
namespace {

using devserver::Reply;
using devserver::StunResponder;
using test::eventually;
using namespace Qt::StringLiterals;

class HeartbeatServiceTest : public test::DevServerTest {
protected:
    HeartbeatServiceTest() {
        const auto device = m_server.registerDevice();
        m_api.setServerUrl(m_server.url());
        m_api.setClientId(device.clientId);
        m_api.setToken(device.token);
    }

    HeartbeatOptions options(std::chrono::milliseconds timeout = std::chrono::milliseconds(100)) {
        return {.publicAddressUrl = m_server.url().resolved(QUrl(u"/address"_s)),
                .natProbe = {u"127.0.0.1"_s, m_server.stunPort(), timeout},
                .hostAddresses = [this] {
                    return m_hostAddresses;
                }};
    }

    QList<QJsonObject> heartbeats() const {
        QList<QJsonObject> bodies;
        for (const auto& request : m_server.requests()) {
            if (request.path == u"/clients/heartbeat") {
                bodies.append(QJsonDocument::fromJson(request.body).object());
            }
        }
        return bodies;
    }

    /// Has the STUN responder answer the first and the second request with these datagrams.
    void script(QList<QByteArray> first, QList<QByteArray> second) {
        m_server.stun().setScript([=, count = 0](const QByteArray&, quint16) mutable {
            return ++count == 1 ? first : second;
        });
    }

    QList<QHostAddress> m_hostAddresses{QHostAddress(u"::1"_s), QHostAddress(u"127.0.0.1"_s),
                                        QHostAddress(u"10.1.2.3"_s), QHostAddress(u"10.9.9.9"_s)};
    ApiClient m_api;
};

QByteArray seenAt(const char* address, quint16 port) {
    return StunResponder::bindingSuccess(QByteArray(20, 0),
                                         QHostAddress(QString::fromLatin1(address)), port);
}

TEST_F(HeartbeatServiceTest, LaterHeartbeatsCarryWhatWasFoundOut) {
    HeartbeatService service(&m_api, nullptr, options(test::kTimeout));
    service.start(20);
    ASSERT_TRUE(eventually([&] {
        const QJsonObject latest = heartbeats().value(heartbeats().size() - 1);
        return latest.contains(u"nat_type"_s) && latest.contains(u"public_ip"_s);
    }));
    const QJsonObject known{{u"client_id"_s, m_api.clientId()},
                            {u"agent_version"_s, u"1.32"_s},
                            {u"local_ip"_s, u"10.1.2.3"_s}};
    EXPECT_EQ(heartbeats().first(), known);
    QJsonObject all = known;
    all[u"public_ip"_s] = u"127.0.0.1"_s;
    all[u"nat_type"_s] = u"SymmetricNAT"_s; // the responder sees both sockets without a NAT
    EXPECT_EQ(heartbeats().last(), all);
    EXPECT_TRUE(m_log.once("info|Public IP detected: 127.0.0.1"));

    m_hostAddresses.remove(2, 2);
    ASSERT_TRUE(eventually([&] { return !heartbeats().last().contains(u"local_ip"_s); }))
        << "only the loopback is left";
}

TEST_F(HeartbeatServiceTest, TwoResponsesTellTheNatType) {
    const QByteArray here = seenAt("192.0.2.1", 1000);
    const QByteArray otherPort = seenAt("192.0.2.1", 1001);
    const QByteArray error = "\x01\x11" + here.mid(2);
    const QByteArray noise(100, '\x01');
    using enum NatType;
    const std::tuple<QList<QByteArray>, QList<QByteArray>, NatType> cases[] = {
        {{seenAt("10.1.2.3", 7)}, {otherPort}, Open},
        {{here}, {here}, PortRestricted},
        {{here}, {otherPort}, Symmetric},
        {{here}, {seenAt("192.0.2.9", 1000)}, PortRestricted},
        {{here}, {seenAt("192.0.2.9", 1001)}, PortRestricted},
        {{here, otherPort}, {}, Symmetric},
        {{noise, here.left(19), error, here}, {error, otherPort, here, here}, Symmetric},
        {QList<QByteArray>(50, noise) << here, {here}, PortRestricted},
        {{here}, {}, Unknown},
        {{here}, {error}, Unknown},
        {{error, {}}, {noise}, Unknown},
        {{}, {}, Unknown},
    };
    for (int number = 1; const auto& [first, second, outcome] : cases) {
        SCOPED_TRACE(number++);
        script(first, second);
        HeartbeatService service(
            &m_api, nullptr,
            options(outcome == Unknown ? std::chrono::milliseconds(50) : test::kTimeout));
        EXPECT_EQ(service.natType(), std::nullopt);
        service.detectNatType();
        EXPECT_TRUE(eventually([&] { return service.natType().has_value(); }));
        EXPECT_EQ(service.natType(), outcome);
    }
}

TEST_F(HeartbeatServiceTest, ANatTypeOnceKnownStays) {
    HeartbeatService service(&m_api, nullptr, options(std::chrono::milliseconds(50)));
    script({}, {});
    service.detectNatType();
    ASSERT_TRUE(eventually([&] { return service.natType() == NatType::Unknown; }));
    m_log.clear();
    script({seenAt("10.1.2.3", 7)}, {seenAt("10.1.2.3", 7)});
    service.detectNatType();
    EXPECT_FALSE(QTest::qWaitFor([&] { return !m_log.lines().empty(); }, 100));
}

TEST_F(HeartbeatServiceTest, TheProbeClosesItsSocketsWhenTheTimeIsUp) {
    for (const bool silent : {false, true}) {
        QList<quint16> ports;
        m_server.stun().setScript([&](const QByteArray&, quint16 port) {
            ports.append(port);
            return silent ? QList<QByteArray>() : QList{seenAt("192.0.2.1", port)};
        });
        NatProbe probe(options(std::chrono::milliseconds(silent ? 50 : 500)).natProbe);
        QSignalSpy finished(&probe, &NatProbe::finished);
        probe.start();
        ASSERT_TRUE(finished.wait());
        EXPECT_EQ(ports.size(), 2);
        for (const quint16 port : ports) {
            EXPECT_TRUE(
                QUdpSocket().bind(QHostAddress::AnyIPv4, port, QUdpSocket::DontShareAddress));
        }
    }
}

TEST_F(HeartbeatServiceTest, NamesAreNotLookedUp) {
    HeartbeatOptions byName = options(std::chrono::milliseconds(50));
    byName.natProbe.serverAddress = u"localhost"_s;
    HeartbeatService service(&m_api, nullptr, byName);
    service.detectNatType();
    EXPECT_TRUE(eventually([&] { return service.natType() == NatType::Unknown; }));
    EXPECT_TRUE(m_log.once("warning|STUN NAT detection timed out"));
}

TEST_F(HeartbeatServiceTest, OnlyAnAddressIsTakenForThePublicAddress) {
    HeartbeatService service(&m_api, nullptr, options());
    const std::pair<Reply, QString> cases[] = {
        {{.status = 500, .body = "192.0.2.1"}, QString()},
        {{.body = "203.0.113.7\n"}, u"203.0.113.7"_s},
        {{.dropConnection = true}, u"203.0.113.7"_s},
        {{.status = 404, .body = QByteArray(100'000, ' ')}, u"203.0.113.7"_s},
        {{.body = "<html>192.0.2.1</html>"}, u"203.0.113.7"_s},
        {{.body = ""}, u"203.0.113.7"_s},
        {{.body = "192.0.2"}, u"203.0.113.7"_s},
        {{.body = "fe80::1%1"}, u"203.0.113.7"_s},
        {{.body = "192.0.2.1" + QByteArray(1'000'000, '\n')}, u"203.0.113.7"_s},
        {{.body = "\t2001:DB8::7\r\n"}, u"2001:DB8::7"_s},
    };
    for (const auto& [reply, address] : cases) {
        m_server.misbehaviour().setReply(u"/address"_s, reply);
        service.fetchPublicIp();
        EXPECT_TRUE(eventually([&] { return service.findChildren<HttpFetch*>().isEmpty(); }));
        EXPECT_EQ(service.publicIp(), address);
    }
}

} // namespace
} // namespace corvane
