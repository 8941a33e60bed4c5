#pragma once

#include "devserver/DevServer.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <chrono>

namespace corvane::test {

constexpr std::chrono::seconds kTimeout(5);

/// A test with a server of its own on free ports, and with the log captured.
class DevServerTest : public testing::Test {
protected:
    DevServerTest() {
        const devserver::DevServerConfig freePorts{
            .address = QHostAddress::LocalHost, .httpPort = 0, .relayPort = 0, .stunPort = 0};
        EXPECT_TRUE(m_server.start(freePorts));
    }

    LogCapture m_log;
    devserver::DevServer m_server;
};

} // namespace corvane::test
