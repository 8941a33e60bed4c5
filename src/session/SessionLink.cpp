#include "session/SessionLink.h"

#include "common/ByteViews.h"
#include "services/ConnectionQualityMonitor.h"
#include "transport/RelayFrame.h"

#include <chrono>

namespace corvane {

namespace {

constexpr std::chrono::milliseconds kLatencyInterval{1000};

// What a file leaves in the send queue: enough to keep a gigabit link busy for 30 ms while the next
// block is read. Input and pictures wait behind it, and behind what the transport itself holds.
constexpr qint64 kFileQueueLimit = 4 * 1024 * 1024;

} // namespace

const size_t SessionLink::kMaxControlMessage = kRelayMaxPayload - AesGcmCipher::kOverhead;

SessionLink::SessionLink(const ByteVector& key, const ByteVector& baseIv, QObject* parent)
    : QObject(parent), m_cipher(key, baseIv) {
    m_latencyTimer.setInterval(kLatencyInterval);
    connect(&m_latencyTimer, &QTimer::timeout, this, &SessionLink::measureLatency);
}

SessionLink::~SessionLink() = default;

void SessionLink::setTransport(ITransport* transport) {
    m_transport = transport;
    if (transport != nullptr) {
        m_latencyTimer.start();
        measureLatency();
    } else {
        m_latencyTimer.stop();
    }
}

void SessionLink::setQualityMonitor(ConnectionQualityMonitor* monitor) {
    m_monitor = monitor;
}

ByteVector SessionLink::seal(const ByteVector& message) {
    return m_cipher.encrypt(message);
}

ByteVector SessionLink::open(const QByteArray& sealed) {
    if (m_monitor) {
        m_monitor->addBytesReceived(sealed.size());
    }
    const ByteSpan bytes = bytesOf(sealed);
    return m_cipher.decrypt(bytes.data(), bytes.size());
}

uint64_t SessionLink::counterOf(const QByteArray& sealed) {
    return AesGcmCipher::counterOf(bytesOf(sealed).data());
}

bool SessionLink::send(ChannelType channel, const ByteVector& sealed) {
    if (!isOpen() || !m_transport->send(channel, sealed.data(), sealed.size())) {
        return false;
    }
    if (m_monitor) {
        m_monitor->addBytesSent(static_cast<qint64>(sealed.size()));
    }
    return true;
}

bool SessionLink::waitForRoom() {
    return isOpen() && m_transport->waitUntilQueued(kFileQueueLimit) && isOpen();
}

void SessionLink::countFrame() {
    if (m_monitor) {
        m_monitor->countFrame();
    }
}

void SessionLink::countDroppedFrame() {
    if (m_monitor) {
        m_monitor->countDroppedFrame();
    }
}

void SessionLink::measureLatency() {
    const auto roundTrip = m_transport ? m_transport->roundTripMilliseconds() : std::nullopt;
    if (roundTrip && m_monitor) {
        m_monitor->setLatency(*roundTrip);
    }
}

} // namespace corvane
