#include "transport/RelayTransport.h"

#include "common/ByteViews.h"
#include "common/JsonFields.h"
#include "transport/SocketLine.h"

#include <spdlog/spdlog.h>

#include <algorithm>

namespace corvane {

namespace {

// Bounds what the socket buffers: a slow handler slows the sender down instead of filling memory.
constexpr qint64 kSocketReadBuffer = 1024 * 1024;
constexpr qint64 kReadPiece = 64 * 1024;
constexpr qsizetype kOwnBlockSize = 16 * 1024;

// What the socket may hold so that the system always finds something to send.
constexpr qint64 kSocketShare = 16 * 1024;

// Far more than is ever queued on a working connection: beyond it the relay has stopped reading.
constexpr qint64 kMaxUnsent = 64 * 1024 * 1024;

} // namespace

RelayTransport::RelayTransport(QObject* parent, std::chrono::milliseconds reconnectDelay,
                               std::chrono::milliseconds stallTimeout)
    : ITransport(parent), m_piece(kReadPiece), m_reconnectBackoff(reconnectDelay),
      m_stallTimeout(stallTimeout) {
    m_socket.setReadBufferSize(kSocketReadBuffer);
    m_reconnectTimer.setSingleShot(true);
    m_reconnectTimer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_socket, &QTcpSocket::connected, this, &RelayTransport::onSocketConnected);
    QObject::connect(&m_socket, &QTcpSocket::disconnected, this,
                     &RelayTransport::onSocketDisconnected);
    QObject::connect(&m_socket, &QTcpSocket::readyRead, this, &RelayTransport::onSocketReadyRead);
    QObject::connect(&m_socket, &QTcpSocket::bytesWritten, this, &RelayTransport::feedSocket);
    QObject::connect(&m_socket, &QTcpSocket::errorOccurred, this, &RelayTransport::onSocketError);
    QObject::connect(&m_reconnectTimer, &QTimer::timeout, this, &RelayTransport::attemptReconnect);
}

RelayTransport::~RelayTransport() {
    m_stopped = true;
    m_reconnectTimer.stop();
    m_socket.QObject::disconnect(this);
    if (m_socket.state() != QAbstractSocket::UnconnectedState) {
        m_socket.abort();
    }
}

bool RelayTransport::connect(const std::string& host, uint16_t port) {
    if (m_socket.state() != QAbstractSocket::UnconnectedState) {
        spdlog::warn("RelayTransport::connect called while socket is in state {}",
                     static_cast<int>(m_socket.state()));
        return false;
    }
    m_reconnectTimer.stop();
    m_host = host;
    m_port = port;
    m_reconnectAttempts = 0;
    m_reconnectBackoff.reset();
    m_stopped = false;
    spdlog::info("RelayTransport: connecting to {}:{}", m_host, m_port);
    openSocket();
    return true;
}

void RelayTransport::disconnect() {
    m_stopped = true;
    m_reconnectTimer.stop();
    m_reconnectAttempts = kMaxReconnectAttempts;
    if (m_socket.state() == QAbstractSocket::UnconnectedState) {
        return;
    }
    spdlog::info("RelayTransport: disconnecting from {}:{}", m_host, m_port);
    // What was sent last, such as the release of a key, should still arrive.
    while (!m_queue.isEmpty() && m_socket.bytesToWrite() < kSocketShare) {
        feedSocket();
        m_socket.flush();
    }
    m_socket.flush();
    m_socket.disconnectFromHost();
    if (m_socket.state() != QAbstractSocket::UnconnectedState) {
        m_socket.abort();
    }
}

bool RelayTransport::isConnected() const {
    return m_socket.state() == QAbstractSocket::ConnectedState;
}

bool RelayTransport::send(ChannelType channel, const uint8_t* data, size_t size) {
    const auto urgency = channel == ChannelType::Video ? RelaySendQueue::Urgency::Video
                                                       : RelaySendQueue::Urgency::Control;
    return enqueue(urgency, channel, data, size);
}

bool RelayTransport::sendBulk(const uint8_t* data, size_t size) {
    return enqueue(RelaySendQueue::Urgency::Bulk, ChannelType::Control, data, size);
}

bool RelayTransport::enqueue(RelaySendQueue::Urgency urgency, ChannelType channel,
                             const uint8_t* data, size_t size) {
    if (!isConnected()) {
        spdlog::warn("RelayTransport::send: not connected");
        return false;
    }
    if (size > kRelayMaxPayload) {
        spdlog::error("RelayTransport::send: payload too large ({} > {})", size, kRelayMaxPayload);
        return false;
    }
    const qint64 unsent = m_queue.bytes() + m_socket.bytesToWrite();
    if (unsent >= kMaxUnsent) {
        spdlog::warn("RelayTransport::send: relay takes no data, {} bytes unsent", unsent);
        return false;
    }
    m_queue.push(urgency, relayFrame(channel, data, size));
    feedSocket();
    return isConnected();
}

void RelayTransport::feedSocket() {
    while (!m_queue.isEmpty() && m_socket.bytesToWrite() < kSocketShare) {
        const QByteArray frame = *m_queue.pop();
        // The socket writes each queued byte array with a system call of its own, so copying small
        // frames into one buffer is cheaper.
        const qint64 written = frame.size() < kOwnBlockSize
                                   ? m_socket.write(frame.constData(), frame.size())
                                   : m_socket.write(frame);
        if (written != frame.size()) {
            spdlog::error("RelayTransport::send: write failed, wrote {}/{} bytes", written,
                          frame.size());
            return;
        }
    }
}

/// What the socket and the system still hold.
qint64 RelayTransport::bytesGiven() const {
    return m_socket.bytesToWrite() +
           (isConnected() ? socketUnsentBytes(m_socket.socketDescriptor()) : 0);
}

qint64 RelayTransport::bytesQueued() const {
    return m_queue.bytes() + bytesGiven();
}

qint64 RelayTransport::videoQueued() {
    return m_queue.videoBytes(bytesGiven());
}

bool RelayTransport::waitUntilQueued(qint64 atMost) {
    // What the system holds leaves by itself, and cannot be waited for.
    const auto waiting = [this] {
        return m_queue.bytes() + m_socket.bytesToWrite();
    };
    while (isConnected() && waiting() > atMost) {
        if (m_socket.bytesToWrite() > 0 &&
            !m_socket.waitForBytesWritten(static_cast<int>(m_stallTimeout.count()))) {
            break;
        }
        feedSocket();
        // If this is called from one of the socket's signals, the socket emits no further ones.
        if (m_socket.bytesAvailable() > 0) {
            onSocketReadyRead();
        }
    }
    return isConnected() && waiting() <= atMost;
}

std::optional<double> RelayTransport::roundTripMilliseconds() const {
    return isConnected() ? socketRoundTripMilliseconds(m_socket.socketDescriptor()) : std::nullopt;
}

void RelayTransport::onSocketConnected() {
    spdlog::info("RelayTransport: connected to {}:{}", m_host, m_port);
    m_reconnectAttempts = 0;
    m_reconnectBackoff.reset();
    clearReceived();
    // Video latency matters more than packet count.
    m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
    limitSocketBacklog(m_socket.socketDescriptor());
    sendJoin();
    Q_EMIT connected();
}

void RelayTransport::onSocketDisconnected() {
    spdlog::info("RelayTransport: disconnected from {}:{}", m_host, m_port);
    m_queue.clear();
    clearReceived();
    Q_EMIT disconnected();
    scheduleReconnect();
}

void RelayTransport::onSocketReadyRead() {
    // A nested call, from inside a handler, continues where the outer one stopped reading.
    while (deliverFrames() && readPiece()) {
    }
}

void RelayTransport::onSocketError(QAbstractSocket::SocketError error) {
    const QString text = m_socket.errorString();
    spdlog::error("RelayTransport: socket error ({}): {}", static_cast<int>(error),
                  text.toStdString());
    if (error != QAbstractSocket::RemoteHostClosedError) {
        Q_EMIT transportError(text);
    }
    // An established connection also reports `disconnected`; a failed attempt reports only this.
    scheduleReconnect();
}

void RelayTransport::attemptReconnect() {
    ++m_reconnectAttempts;
    if (m_socket.state() != QAbstractSocket::UnconnectedState) {
        m_socket.abort();
    }
    spdlog::info("RelayTransport: reconnect attempt {}/{} to {}:{}", m_reconnectAttempts,
                 kMaxReconnectAttempts, m_host, m_port);
    openSocket();
}

void RelayTransport::openSocket() {
    clearReceived();
    m_socket.connectToHost(QString::fromStdString(m_host), m_port, QIODevice::ReadWrite,
                           QAbstractSocket::AnyIPProtocol);
}

void RelayTransport::sendJoin() {
    if (m_sessionId.isEmpty()) {
        spdlog::warn("RelayTransport: no session ID set, skipping relay_join");
        return;
    }
    const std::string sessionId = m_sessionId.toStdString();
    const std::string join = jsonText({{"type", "relay_join"}, {"session_id", sessionId}});
    spdlog::debug("RelayTransport: sending relay_join for session {}", sessionId);
    m_socket.write(relayFrame(ChannelType::Control, bytesOf(join).data(), join.size()));
}

bool RelayTransport::readPiece() {
    const qint64 count = m_socket.read(reinterpret_cast<char*>(m_piece.data()), kReadPiece);
    m_unparsed = ByteSpan(m_piece).first(static_cast<size_t>(std::max<qint64>(count, 0)));
    return count > 0;
}

/// False if reading must stop because the stream was refused or a handler closed the connection.
bool RelayTransport::deliverFrames() {
    const uint64_t epoch = m_receiveEpoch;
    while (!m_unparsed.empty()) {
        switch (m_parser.consume(m_unparsed)) {
        case RelayFrameParser::Result::NeedMoreData:
            break;
        case RelayFrameParser::Result::FrameReady:
            Q_EMIT dataReceived(m_parser.channel(), m_parser.takePayload());
            if (m_receiveEpoch != epoch) {
                return false;
            }
            break;
        case RelayFrameParser::Result::InvalidChannel:
            spdlog::error("RelayTransport: invalid channel type {}, resetting buffer",
                          m_parser.channelByte());
            refuseStream(QStringLiteral("Invalid channel type in frame header"));
            return false;
        case RelayFrameParser::Result::PayloadTooLarge:
            spdlog::error("RelayTransport: payload length {} exceeds maximum {}",
                          m_parser.payloadSize(), kRelayMaxPayload);
            refuseStream(QStringLiteral("Frame payload exceeds maximum size"));
            return false;
        }
    }
    return true;
}

/// Keeps the connection open on purpose: parsing starts afresh with the next bytes received.
void RelayTransport::refuseStream(const QString& reason) {
    m_socket.skip(m_socket.bytesAvailable());
    clearReceived();
    Q_EMIT transportError(reason);
}

void RelayTransport::clearReceived() {
    m_parser.reset();
    m_unparsed = {};
    ++m_receiveEpoch;
}

/// Does nothing while the socket is connected or connecting.
void RelayTransport::scheduleReconnect() {
    if (m_stopped || m_reconnectAttempts >= kMaxReconnectAttempts || m_reconnectTimer.isActive() ||
        m_socket.state() != QAbstractSocket::UnconnectedState) {
        return;
    }
    const auto delay = m_reconnectBackoff.next();
    spdlog::info("RelayTransport: reconnecting in {} ms (attempt {}/{})", delay.count(),
                 m_reconnectAttempts + 1, kMaxReconnectAttempts);
    m_reconnectTimer.start(delay);
}

} // namespace corvane
