#include "ui/WakeOnLan.h"

#include <QRegularExpression>
#include <QUdpSocket>

namespace corvane {

std::optional<QByteArray> wakeOnLanPacket(QString macAddress) {
    static const QRegularExpression kSeparators(QStringLiteral("[:\\- ]"));
    static const QRegularExpression kSixPairs(QStringLiteral("\\A[0-9A-Fa-f]{12}\\z"));
    macAddress.remove(kSeparators);
    if (!kSixPairs.match(macAddress).hasMatch()) {
        return std::nullopt;
    }
    constexpr int kRepetitions = 16;
    return QByteArray(6, '\xff') +
           QByteArray::fromHex(macAddress.toLatin1()).repeated(kRepetitions);
}

bool broadcastWakeOnLan(const QByteArray& packet) {
    constexpr quint16 kDiscardPort = 9;
    QUdpSocket socket;
    return socket.writeDatagram(packet, QHostAddress(QHostAddress::Broadcast), kDiscardPort) ==
           packet.size();
}

} // namespace corvane
