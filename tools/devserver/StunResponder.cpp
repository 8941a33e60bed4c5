#include "devserver/StunResponder.h"

#include <QNetworkDatagram>
#include <QUdpSocket>
#include <QtEndian>

#include <array>

namespace corvane::devserver {
namespace {

constexpr qsizetype kHeaderBytes = 20;
constexpr quint16 kBindingRequest = 0x0001;
constexpr quint16 kBindingSuccess = 0x0101;
constexpr quint16 kXorMappedAddress = 0x0020;
constexpr quint16 kFamilyIpv4 = 0x0001;
constexpr quint32 kMagicCookie = 0x2112A442;
constexpr quint16 kAttributeValueBytes = 8;
constexpr quint16 kAttributeBytes = 4 + kAttributeValueBytes;

template <typename T>
void append(QByteArray& bytes, T value) {
    std::array<char, sizeof(T)> field;
    qToBigEndian(value, field.data());
    bytes.append(field.data(), qsizetype{sizeof(T)});
}

bool isBindingRequest(const QByteArray& message) {
    return message.size() >= kHeaderBytes &&
           qFromBigEndian<quint16>(message.constData()) == kBindingRequest &&
           qFromBigEndian<quint32>(message.constData() + 4) == kMagicCookie;
}

} // namespace

StunResponder::StunResponder(QObject* parent) : QObject(parent), m_socket(new QUdpSocket(this)) {
    connect(m_socket, &QUdpSocket::readyRead, this, &StunResponder::onReadable);
}

bool StunResponder::start(const QHostAddress& address, quint16 port) {
    return m_socket->bind(address, port, QUdpSocket::DontShareAddress);
}

quint16 StunResponder::port() const {
    return m_socket->localPort();
}

QByteArray StunResponder::bindingSuccess(const QByteArray& request, const QHostAddress& address,
                                         quint16 port) {
    QByteArray response;
    append(response, kBindingSuccess);
    append(response, kAttributeBytes);
    response.append(request.mid(4, kHeaderBytes - 4));
    append(response, kXorMappedAddress);
    append(response, kAttributeValueBytes);
    append(response, kFamilyIpv4);
    append(response, static_cast<quint16>(port ^ (kMagicCookie >> 16)));
    append(response, address.toIPv4Address() ^ kMagicCookie);
    return response;
}

void StunResponder::onReadable() {
    while (m_socket->hasPendingDatagrams()) {
        const QNetworkDatagram datagram = m_socket->receiveDatagram();
        const auto senderPort = static_cast<quint16>(datagram.senderPort());
        if (!isBindingRequest(datagram.data())) {
            continue;
        }
        const QList<QByteArray> answers =
            m_script ? m_script(datagram.data(), senderPort)
                     : QList{bindingSuccess(datagram.data(), datagram.senderAddress(), senderPort)};
        for (const QByteArray& answer : answers) {
            m_socket->writeDatagram(answer, datagram.senderAddress(), senderPort);
        }
    }
}

} // namespace corvane::devserver
