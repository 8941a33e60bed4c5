#pragma once

#include "ApiClient.h"
#include "DevServer.h"
#include "LogCapture.h"
#include "SessionManager.h"
#include "SignalingClient.h"
#include "TestPlatform.h"

#include <QStringList>
#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace corvane::test {

/// Runs the event loop until `holds` does; false when that takes ten seconds.
bool eventually(const std::function<bool()>& holds);

/// One registered device, online, that accepts what the server has checked the password of.
struct Device {
    explicit Device(devserver::DevServer& server);

    /// Of a server elsewhere, and able to connect directly.
    Device(const QUrl& server, const devserver::Device& registered,
           std::function<std::unique_ptr<IPeerTransport>()> peerTransport);

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
    SessionTest();

    /// An online device with the session password "Password1" and the pairing code "123456".
    std::unique_ptr<Device> createDevice();

    /// `viewer` views `target`; false when they do not get that far.
    bool connectDevices(Device& viewer, Device& target);

    /// Bodies of the close requests received, oldest first.
    QStringList closeReasons() const;

    LogCapture m_log;
    devserver::DevServer m_server;
};

} // namespace corvane::test
