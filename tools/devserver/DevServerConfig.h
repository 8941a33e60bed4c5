#pragma once

#include <QHostAddress>

namespace corvane::devserver {

/// Where the servers listen. `address` must be a loopback address; port 0 takes any free port.
struct DevServerConfig {
    QHostAddress address = QHostAddress::LocalHost;
    quint16 httpPort = 0;
    quint16 relayPort = 9000;
    quint16 stunPort = 19302;
};

} // namespace corvane::devserver
