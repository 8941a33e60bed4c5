#pragma once

#include "devserver/DevServer.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <chrono>

namespace corvane::test {

constexpr std::chrono::seconds kTimeout(5);

/// A server on free ports.
struct FreePortServer : devserver::DevServer {
    FreePortServer() {
        EXPECT_TRUE(start(
            {.address = QHostAddress::LocalHost, .httpPort = 0, .relayPort = 0, .stunPort = 0}));
    }
};

/// A test with a server of its own, and with the log captured.
class DevServerTest : public testing::Test {
protected:
    LogCapture m_log;
    FreePortServer m_server;
};

} // namespace corvane::test
