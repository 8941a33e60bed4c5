#include "network/reachability/HeartbeatService.h"
#include "devserver/StunResponder.h"
#include "network/DevServerTest.h"
#include "network/server/ApiClient.h"
#include "network/server/HttpFetch.h"

#include <QJsonDocument>
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
    EXPECT_EQ(m_log.lines(),
              std::vector<std::string>{"info|Heartbeat service started (interval: 20 ms)"});
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
    const std::string open = "info|NAT type detected: Open";
    const std::string stable = "info|NAT type detected: PortRestricted";
    const std::string symmetric = "info|NAT type detected: SymmetricNAT";
    const std::string unknown = "warning|STUN NAT detection timed out";
    const std::tuple<QList<QByteArray>, QList<QByteArray>, std::string> cases[] = {
        {{seenAt("10.1.2.3", 7)}, {otherPort}, open},
        {{here}, {here}, stable},
        {{here}, {otherPort}, symmetric},
        {{here}, {seenAt("192.0.2.9", 1000)}, stable},
        {{here}, {seenAt("192.0.2.9", 1001)}, stable},
        {{here, otherPort}, {}, symmetric},
        {{noise, here.left(19), error, here}, {error, otherPort, here, here}, symmetric},
        {QList<QByteArray>(50, noise) << here, {here}, stable},
        {{here}, {}, unknown},
        {{here}, {error}, unknown},
        {{error, {}}, {noise}, unknown},
        {{}, {}, unknown},
    };
    for (int number = 1; const auto& [first, second, outcome] : cases) {
        SCOPED_TRACE(number++);
        script(first, second);
        m_log.clear();
        const bool answers = outcome != unknown;
        HeartbeatService service(&m_api, nullptr,
                                 options(answers ? test::kTimeout : std::chrono::milliseconds(50)));
        EXPECT_EQ(service.natType(), std::nullopt);
        service.detectNatType();
        EXPECT_TRUE(eventually([&] { return service.natType().has_value(); }));
        EXPECT_EQ(m_log.lines(), std::vector{outcome});
        EXPECT_EQ(service.natType() == NatType::Unknown, !answers);
    }
}

TEST_F(HeartbeatServiceTest, ANatTypeOnceKnownStays) {
    HeartbeatService service(&m_api, nullptr, options(std::chrono::milliseconds(50)));
    script({}, {});
    service.detectNatType();
    ASSERT_TRUE(eventually([&] { return service.natType() == NatType::Unknown; }));
    m_log.clear();
    int requests = 0;
    m_server.stun().setScript([&](const QByteArray& request, quint16 port) {
        ++requests;
        return QList{StunResponder::bindingSuccess(request, QHostAddress(u"10.1.2.3"_s), port)};
    });
    service.detectNatType();
    service.detectNatType();
    ASSERT_TRUE(eventually([&] { return requests == 4; }));
    EXPECT_FALSE(QTest::qWaitFor([&] { return !m_log.lines().empty(); }, 100));
    EXPECT_EQ(service.natType(), NatType::Unknown);
}

TEST_F(HeartbeatServiceTest, TheProbeClosesItsSocketsWhenTheTimeIsUp) {
    for (const bool silent : {false, true}) {
        QList<quint16> ports;
        m_server.stun().setScript([&](const QByteArray&, quint16 port) {
            ports.append(port);
            return silent ? QList<QByteArray>() : QList{seenAt("192.0.2.1", port)};
        });
        const auto freePorts = [&] {
            return std::count_if(ports.begin(), ports.end(), [](quint16 port) {
                return QUdpSocket().bind(QHostAddress::AnyIPv4, port, QUdpSocket::DontShareAddress);
            });
        };
        NatProbe probe(options(std::chrono::milliseconds(silent ? 50 : 500)).natProbe);
        qsizetype freeWhenMapped = -1;
        qsizetype freeWhenFinished = -1;
        QObject::connect(&probe, &NatProbe::mapped, [&] { freeWhenMapped = freePorts(); });
        QObject::connect(&probe, &NatProbe::finished, [&] { freeWhenFinished = freePorts(); });
        probe.start();
        ASSERT_TRUE(eventually([&] { return freeWhenFinished >= 0; }));
        EXPECT_EQ(freeWhenMapped, silent ? -1 : 0);
        EXPECT_EQ(freeWhenFinished, 2);
        EXPECT_EQ(ports.size(), 2);
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
    const std::string refused =
        "warning|HeartbeatService: the public-address service did not answer with an address";
    const std::tuple<Reply, QString, std::vector<std::string>> cases[] = {
        {{.status = 500, .body = "192.0.2.1"}, QString(), {}},
        {{.body = "203.0.113.7\n"}, u"203.0.113.7"_s, {"info|Public IP detected: 203.0.113.7"}},
        {{.dropConnection = true}, u"203.0.113.7"_s, {}},
        {{.status = 404, .body = QByteArray(100'000, ' ')}, u"203.0.113.7"_s, {refused}},
        {{.body = "<html>192.0.2.1</html>"}, u"203.0.113.7"_s, {refused}},
        {{.body = ""}, u"203.0.113.7"_s, {refused}},
        {{.body = "192.0.2"}, u"203.0.113.7"_s, {refused}},
        {{.body = "fe80::1%1"}, u"203.0.113.7"_s, {refused}},
        {{.body = "192.0.2.1" + QByteArray(1'000'000, '\n')}, u"203.0.113.7"_s, {refused}},
        {{.body = "\t2001:DB8::7\r\n"}, u"2001:DB8::7"_s, {"info|Public IP detected: 2001:DB8::7"}},
    };
    for (const auto& [reply, address, log] : cases) {
        m_server.misbehaviour().setReply(u"/address"_s, reply);
        m_log.clear();
        service.fetchPublicIp();
        EXPECT_TRUE(eventually([&] { return service.findChildren<HttpFetch*>().isEmpty(); }));
        EXPECT_EQ(service.publicIp(), address);
        EXPECT_EQ(m_log.lines(), log);
    }
}

} // namespace
} // namespace corvane
