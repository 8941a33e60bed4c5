#pragma once

#include "TestPlatform.h"
#include "common/JsonFields.h"
#include "devserver/DevServer.h"
#include "network/server/ApiClient.h"
#include "network/server/SignalingClient.h"
#include "session/SessionManager.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QCoreApplication>
#include <QStringList>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace corvane::test {

/// One registered device, online, that accepts what the server has checked the password of.
struct Device {
    explicit Device(devserver::DevServer& server)
        : Device(server.url(), server.registerDevice(), [] { return nullptr; }) {}

    /// With another server, and able to connect directly.
    Device(const QUrl& server, const devserver::Device& registered,
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
            states.append(QString::fromStdString(std::string(sessionStateName(state))));
        });
        QObject::connect(session.get(), &SessionManager::sessionError,
                         [this](const QString& error) { errors.append(error); });
        QObject::connect(session.get(), &SessionManager::frameDecoded,
                         [this](const std::shared_ptr<DecodedFrame>& frame) { picture = frame; });
        signaling.connectToServer(server, registered.clientId, registered.token);
    }

    QString id;
    ApiClient api;
    SignalingClient signaling;
    std::shared_ptr<Machine> machine = std::make_shared<Machine>();
    QStringList states;
    QStringList errors;
    std::shared_ptr<DecodedFrame> picture; ///< the last one decoded
    std::unique_ptr<SessionManager> session;

    bool is(SessionState state) const { return session->state() == state; }
};

/// Devices around a server that has a loopback address, and so the relay's port, to itself.
class SessionTest : public ::testing::Test {
protected:
    SessionTest() {
        // Test processes that run at the same time differ in their process ID.
        const qint64 pid = QCoreApplication::applicationPid();
        const QString own =
            QStringLiteral("127.10.%1.%2").arg(pid / 250 % 250 + 1).arg(pid % 250 + 1);
        QString error;
        EXPECT_TRUE(m_server.start({.address = QHostAddress(own), .stunPort = 0}, &error))
            << error.toStdString();
    }

    /// An online device with the session password "Password1" and the pairing code "123456".
    std::unique_ptr<Device> createDevice() {
        auto device = std::make_unique<Device>(m_server);
        EXPECT_TRUE(eventually([&] { return m_server.isOnline(device->id); }));
        device->signaling.sendMessage({{"type", "SET_PASSWORD"}, {"password", "Password1"}});
        device->signaling.sendMessage({{"type", "SET_PAIRING_CODE"}, {"code", "123456"}});
        EXPECT_TRUE(eventually([&] { return m_server.signalingMessages(device->id).size() == 3; }));
        return device;
    }

    /// `viewer` views `target`; false when they do not get that far.
    bool connectDevices(Device& viewer, Device& target) {
        viewer.session->initiateSession(target.id, QStringLiteral("Password1"));
        return eventually([&] {
            return viewer.is(SessionState::Connected) && target.is(SessionState::Connected) &&
                   m_server.relay().joinedPeers(viewer.session->sessionId()) == 2;
        });
    }

    /// Bodies of the close requests received, oldest first.
    QStringList closeReasons() const {
        QStringList reasons;
        for (const auto& request : m_server.requests()) {
            if (request.path.endsWith(u"/close")) {
                reasons.append(jsonString(parseJson(request.body.toStdString()), "reason").value());
            }
        }
        return reasons;
    }

    LogCapture m_log;
    devserver::DevServer m_server;
};

/// Two such devices, one of them to view the other.
class SessionPairTest : public SessionTest {
protected:
    bool connectDevices() { return SessionTest::connectDevices(*m_viewer, *m_target); }

    /// Waits until they are in these states.
    bool become(SessionState viewer, SessionState target) {
        return eventually([=, this] { return m_viewer->is(viewer) && m_target->is(target); });
    }

    const std::unique_ptr<Device> m_target = createDevice();
    const std::unique_ptr<Device> m_viewer = createDevice();
};

} // namespace corvane::test
