#include "network/reachability/NatProbe.h"

#include "common/ByteViews.h"

#include <QNetworkDatagram>
#include <QRandomGenerator>

#include <utility>

namespace corvane {

namespace {

StunTransactionId randomTransactionId() {
    StunTransactionId id;
    for (uint8_t& byte : id) {
        byte = static_cast<uint8_t>(QRandomGenerator::global()->bounded(256));
    }
    return id;
}

} // namespace

NatProbe::NatProbe(NatProbeOptions options, QObject* parent)
    : QObject(parent), m_options(std::move(options)) {
    for (QUdpSocket& socket : m_sockets) {
        connect(&socket, &QUdpSocket::readyRead, this, [this, &socket] { onReadable(socket); });
    }
    connect(&m_timer, &QTimer::timeout, this, &NatProbe::onTimeout);
    m_timer.setSingleShot(true);
}

void NatProbe::start() {
    m_first.reset();
    m_responses = 0;
    for (QUdpSocket& socket : m_sockets) {
        send(socket);
    }
    m_timer.start(m_options.timeout);
}

void NatProbe::send(QUdpSocket& socket) {
    socket.close();
    const QHostAddress server(m_options.serverAddress);
    if (socket.bind(QHostAddress::AnyIPv4) && !server.isNull()) {
        socket.writeDatagram(stunBindingRequest(randomTransactionId()), server,
                             m_options.serverPort);
    }
}

// One datagram at a time: the socket reports again while more are waiting, so that a flood cannot
// keep the event loop from anything else.
void NatProbe::onReadable(QUdpSocket& socket) {
    const QByteArray datagram = socket.receiveDatagram().data();
    const auto mapping = parseStunBindingResponse(bytesOf(datagram));
    if (!mapping || m_responses >= 2) {
        return;
    }
    if (++m_responses == 1) {
        m_first = mapping;
    } else {
        Q_EMIT mapped(*m_first, *mapping);
    }
}

void NatProbe::onTimeout() {
    for (QUdpSocket& socket : m_sockets) {
        socket.close();
    }
    Q_EMIT finished();
}

NatType NatProbe::classify(const MappedAddress& first, const MappedAddress& second,
                           const QString& localAddress) {
    if (first.address.toString() == localAddress) {
        return NatType::Open;
    }
    if (first.address == second.address && first.port != second.port) {
        return NatType::Symmetric;
    }
    return NatType::PortRestricted;
}

} // namespace corvane
