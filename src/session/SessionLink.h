#pragma once

#include "common/ByteVector.h"
#include "session/ControlMessage.h"
#include "session/LagGuard.h"
#include "session/SessionState.h"
#include "transport/ITransport.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>

namespace corvane {

class AesGcmCipher;
class ConnectionQualityMonitor;

/// The result of sending a message.
enum class SendResult {
    Sent,
    NotConnected, ///< the session is not connected, or is closing
    NoTransport,
    SealingFailed,
    Refused, ///< by the transport; the message is lost
};

/// The sealed link between the two peers of one session: seals what goes out, opens what comes in,
/// and counts both for the quality monitor, if there is one. Main thread, except for the cipher.
class SessionLink : public QObject {
    Q_OBJECT

public:
    /// The largest control message that can be sent, tag byte included.
    static const size_t kMaxControlMessage;

    /// `cipher` holds the session's key and is not null.
    explicit SessionLink(std::unique_ptr<AesGcmCipher> cipher, QObject* parent = nullptr);
    ~SessionLink() override;

    AesGcmCipher& cipher() { return *m_cipher; }

    /// Borrowed; null for none.
    void setTransport(ITransport* transport);
    bool hasTransport() const { return !m_transport.isNull(); }

    void setState(SessionState state) { m_state = state; }
    SessionState state() const { return m_state; }

    /// Nothing is sent before the session is connected or after it closes.
    bool isOpen() const { return !obstacle(); }

    /// Borrowed; null for none.
    void setQualityMonitor(ConnectionQualityMonitor* monitor);

    /// Empty on failure.
    ByteVector open(const QByteArray& sealed);

    /// The peer's counter in a message that was opened successfully.
    static uint64_t counterOf(const QByteArray& sealed);

    /// Seals a message and sends it. One that cannot be sent is not sealed, so that the peer sees
    /// no gap in the counters.
    SendResult send(ChannelType channel, const ByteVector& message);

    /// The same for a control message that may wait for all others.
    SendResult sendBulk(const ByteVector& message);

    /// Sends a message that is already sealed.
    SendResult sendSealed(ChannelType channel, const ByteVector& sealed);

    /// Whether more of a file may be sent. True as well when nothing can be sent at all: trying
    /// shows it.
    bool hasRoom() const;

    /// Nothing is known without a transport.
    LinkLoad load() const;

    void countFrame();
    void countDroppedFrame();

private:
    /// Why nothing can be sent; no value when the link is open.
    std::optional<SendResult> obstacle() const;
    SendResult sent(bool accepted, const ByteVector& sealed);
    void measureLatency();

    const std::unique_ptr<AesGcmCipher> m_cipher;
    QPointer<ITransport> m_transport;
    QPointer<ConnectionQualityMonitor> m_monitor;
    QTimer m_latencyTimer;
    SessionState m_state = SessionState::Idle;
};

} // namespace corvane
