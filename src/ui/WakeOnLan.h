#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace corvane {

/// The packet that wakes the machine whose network card has this address: six bytes 0xFF, then
/// sixteen times the address. `macAddress` is six pairs of hexadecimal digits, with or without
/// colons, dashes or spaces between them; no value for anything else.
std::optional<QByteArray> wakeOnLanPacket(QString macAddress);

/// Broadcasts the packet once on the local network. False when the system refuses.
bool broadcastWakeOnLan(const QByteArray& packet);

} // namespace corvane
