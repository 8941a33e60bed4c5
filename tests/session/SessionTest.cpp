#include "SessionTest.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

namespace corvane::test {

namespace {

/// Test processes that run at the same time differ in their process ID.
QHostAddress ownLoopbackAddress() {
    const qint64 pid = QCoreApplication::applicationPid();
    return QHostAddress(QStringLiteral("127.10.%1.%2").arg(pid / 250 % 250 + 1).arg(pid % 250 + 1));
}

} // namespace

bool eventually(const std::function<bool()>& holds) {
    return QTest::qWaitFor(holds, 10'000);
}

Device::Device(devserver::DevServer& server)
    : Device(server.url(), server.registerDevice(), [] { return nullptr; }) {}

Device::Device(const QUrl& server, const devserver::Device& registered,
               std::function<std::unique_ptr<IPeerTransport>()> peerTransport) {
    SessionPlatform platform = createTestPlatform(machine);
    platform.peerTransport = std::move(peerTransport);
    id = registered.clientId;
    api.setServerUrl(server);
    api.setClientId(registered.clientId);
    api.setToken(registered.token);
    session = std::make_unique<SessionManager>(&api, &signaling, std::move(platform));
    QObject::connect(&signaling, &SignalingClient::sessionAutoAccept, session.get(),
                     &SessionManager::acceptSession);
    QObject::connect(session.get(), &SessionManager::stateChanged, [this](SessionState state) {
        const auto name = sessionStateName(state);
        states.append(QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size())));
    });
    QObject::connect(session.get(), &SessionManager::sessionError,
                     [this](const QString& error) { errors.append(error); });
    QObject::connect(session.get(), &SessionManager::frameDecoded,
                     [this](const std::shared_ptr<DecodedFrame>& frame) { picture = frame; });
    signaling.connectToServer(server, registered.clientId, registered.token);
}

SessionTest::SessionTest() {
    QString error;
    EXPECT_TRUE(m_server.start({.address = ownLoopbackAddress(), .stunPort = 0}, &error))
        << error.toStdString();
}

std::unique_ptr<Device> SessionTest::createDevice() {
    auto device = std::make_unique<Device>(m_server);
    EXPECT_TRUE(eventually([&] { return m_server.isOnline(device->id); }));
    device->signaling.sendMessage({{"type", "SET_PASSWORD"}, {"password", "Password1"}});
    device->signaling.sendMessage({{"type", "SET_PAIRING_CODE"}, {"code", "123456"}});
    EXPECT_TRUE(eventually([&] { return m_server.signalingMessages(device->id).size() == 3; }));
    return device;
}

bool SessionTest::connectDevices(Device& viewer, Device& target) {
    viewer.session->initiateSession(target.id, QStringLiteral("Password1"));
    return eventually([&] {
        return viewer.is(SessionState::Connected) && target.is(SessionState::Connected) &&
               m_server.relay().joinedPeers(viewer.session->sessionId()) == 2;
    });
}

QStringList SessionTest::closeReasons() const {
    QStringList reasons;
    for (const auto& request : m_server.requests()) {
        if (request.path.endsWith(u"/close")) {
            reasons.append(QJsonDocument::fromJson(request.body)
                               .object()
                               .value(QStringLiteral("reason"))
                               .toString());
        }
    }
    return reasons;
}

} // namespace corvane::test
