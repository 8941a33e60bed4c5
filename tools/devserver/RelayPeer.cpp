#include "devserver/RelayPeer.h"

#include "devserver/HttpMessages.h"

#include <QTcpSocket>

#include <limits>

using namespace Qt::StringLiterals;

namespace corvane::devserver {
namespace {

/// Max unread bytes kept per peer, including those held for a partner that has not joined yet.
constexpr qint64 kReadBufferBytes = qint64{1024} * 1024;

/// With more unsent bytes to a peer than this, its partner is no longer read.
constexpr qint64 kHighWaterBytes = qint64{4} * 1024 * 1024;

constexpr qint64 kChunkBytes = qint64{256} * 1024;
constexpr qint64 kMaxJoinBytes = 4096;
constexpr qsizetype kMaxSessionIdLength = 128;

} // namespace

RelayPeer::RelayPeer(QTcpSocket* socket, QObject* parent)
    : QObject(parent), m_socket(socket), m_chunk(kChunkBytes, Qt::Uninitialized) {
    m_socket->setParent(this);
    m_socket->setReadBufferSize(kReadBufferBytes);
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(m_socket, &QTcpSocket::readyRead, this, [this] { pump(kHighWaterBytes); });
    connect(m_socket, &QTcpSocket::bytesWritten, this, [this] {
        if (m_partner) {
            m_partner->pump(kHighWaterBytes);
        }
    });
    connect(m_socket, &QTcpSocket::disconnected, this, &RelayPeer::gone);
}

void RelayPeer::pairWith(RelayPeer* partner) {
    m_partner = partner;
    QMetaObject::invokeMethod(
        this, [this] { pump(kHighWaterBytes); }, Qt::QueuedConnection);
}

void RelayPeer::setStalled(bool stalled) {
    m_stalled = stalled;
    pump(kHighWaterBytes);
}

void RelayPeer::write(const QByteArray& bytes) {
    m_socket->write(bytes);
}

void RelayPeer::part() {
    if (!m_partner) {
        return;
    }
    if (!m_aborted) {
        pump(std::numeric_limits<qint64>::max());
    }
    m_partner->m_partner = nullptr;
    m_partner = nullptr;
}

void RelayPeer::close() {
    m_socket->disconnectFromHost();
}

void RelayPeer::abort() {
    m_aborted = true;
    m_socket->abort();
}

void RelayPeer::pump(qint64 highWater) {
    if (m_pumping) {
        return;
    }
    m_pumping = true;
    do {
        while (mayRead(highWater)) {
            const bool valid = m_scanner.payloadBytesMissing() == 0 ? readHeader() : readPayload();
            if (!valid) {
                abort();
            }
        }
        // This may make room without a signal while one of the socket's signals is being handled.
        if (m_partner) {
            m_partner->m_socket->flush();
        }
    } while (mayRead(highWater));
    m_pumping = false;
}

bool RelayPeer::mayRead(qint64 highWater) const {
    if (m_stalled || m_aborted || m_socket->bytesAvailable() == 0) {
        return false;
    }
    return m_sessionId.isEmpty() || (m_partner && m_partner->m_socket->bytesToWrite() < highWater);
}

bool RelayPeer::readHeader() {
    const qint64 count = m_socket->read(m_scanner.headerSpace(), m_scanner.headerBytesMissing());
    if (count <= 0) {
        return false;
    }
    switch (m_scanner.headerBytesArrived(count)) {
    case FrameScanner::HeaderState::Partial:
        return true;
    case FrameScanner::HeaderState::Invalid:
        return false;
    case FrameScanner::HeaderState::Complete:
        break;
    }
    if (m_sessionId.isEmpty()) {
        const qint64 length = m_scanner.payloadBytesMissing();
        return m_scanner.channel() == 0 && length > 0 && length <= kMaxJoinBytes;
    }
    Q_EMIT frameStarted(m_scanner.channel(), m_scanner.payloadBytesMissing());
    forward(m_scanner.header(), FrameScanner::kHeaderBytes);
    return true;
}

bool RelayPeer::readPayload() {
    const qint64 count =
        m_socket->read(m_chunk.data(), qMin(kChunkBytes, m_scanner.payloadBytesMissing()));
    if (count <= 0) {
        return false;
    }
    m_scanner.payloadBytesArrived(count);
    if (!m_sessionId.isEmpty()) {
        forward(m_chunk.constData(), count);
        return true;
    }
    m_join.append(m_chunk.constData(), count);
    return m_scanner.payloadBytesMissing() > 0 || finishJoin();
}

bool RelayPeer::finishJoin() {
    const QJsonObject join = jsonObject(m_join);
    const QString sessionId = join["session_id"_L1].toString();
    if (join["type"_L1].toString() != "relay_join"_L1 || sessionId.isEmpty() ||
        sessionId.size() > kMaxSessionIdLength) {
        return false;
    }
    m_sessionId = sessionId;
    Q_EMIT joined();
    return true;
}

void RelayPeer::forward(const char* bytes, qint64 count) {
    m_partner->m_socket->write(bytes, count);
    Q_EMIT forwarded(count);
}

} // namespace corvane::devserver
