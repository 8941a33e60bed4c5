#pragma once

#include <QHostAddress>

namespace corvane::devserver {

/// Where the servers listen; port 0 takes any free port.
struct DevServerConfig {
    QHostAddress address = QHostAddress::LocalHost;
    quint16 httpPort = 0;
    quint16 relayPort = 9000;
    quint16 stunPort = 19302;
    /// Refuses other addresses. Off only where nobody else can reach them, as in a test's own
    /// network namespace.
    bool loopbackOnly = true;
};

} // namespace corvane::devserver
