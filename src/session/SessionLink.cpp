#include "session/SessionLink.h"

#include "common/ByteViews.h"
#include "crypto/AesGcmCipher.h"
#include "services/ConnectionQualityMonitor.h"
#include "transport/RelayFrame.h"

#include <chrono>

namespace corvane {

namespace {

constexpr std::chrono::milliseconds kLatencyInterval{1000};

// How much of a file the send queue may hold: enough to keep a gigabit link busy for the 2 ms until
// the next block is sent.
constexpr qint64 kFileQueueLimit = 256 * 1024;

} // namespace

const size_t SessionLink::kMaxControlMessage = kRelayMaxPayload - AesGcmCipher::kOverhead;

SessionLink::SessionLink(std::unique_ptr<AesGcmCipher> cipher, QObject* parent)
    : QObject(parent), m_cipher(std::move(cipher)) {
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

ByteVector SessionLink::open(const QByteArray& sealed) {
    if (m_monitor) {
        m_monitor->addBytesReceived(sealed.size());
    }
    const ByteSpan bytes = bytesOf(sealed);
    return m_cipher->decrypt(bytes.data(), bytes.size());
}

uint64_t SessionLink::counterOf(const QByteArray& sealed) {
    return AesGcmCipher::counterOf(bytesOf(sealed).data());
}

SendResult SessionLink::send(ChannelType channel, const ByteVector& message) {
    if (const auto reason = obstacle()) {
        return *reason;
    }
    const ByteVector sealed = m_cipher->encrypt(message);
    return sealed.empty() ? SendResult::SealingFailed : sendSealed(channel, sealed);
}

SendResult SessionLink::sendBulk(const ByteVector& message) {
    if (const auto reason = obstacle()) {
        return *reason;
    }
    const ByteVector sealed = m_cipher->encrypt(message);
    return sealed.empty() ? SendResult::SealingFailed
                          : sent(m_transport->sendBulk(sealed.data(), sealed.size()), sealed);
}

SendResult SessionLink::sendSealed(ChannelType channel, const ByteVector& sealed) {
    if (const auto reason = obstacle()) {
        return *reason;
    }
    return sent(m_transport->send(channel, sealed.data(), sealed.size()), sealed);
}

SendResult SessionLink::sent(bool accepted, const ByteVector& sealed) {
    if (!accepted) {
        return SendResult::Refused;
    }
    if (m_monitor) {
        m_monitor->addBytesSent(static_cast<qint64>(sealed.size()));
    }
    return SendResult::Sent;
}

std::optional<SendResult> SessionLink::obstacle() const {
    if (m_state != SessionState::Connected) {
        return SendResult::NotConnected;
    }
    return m_transport ? std::nullopt : std::optional(SendResult::NoTransport);
}

bool SessionLink::hasRoom() const {
    return !isOpen() || m_transport->bytesQueued() <= kFileQueueLimit;
}

LinkLoad SessionLink::load() const {
    return m_transport ? LinkLoad{m_transport->videoQueued(), m_transport->roundTripMilliseconds()}
                       : LinkLoad{};
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
