#pragma once

#include "common/ByteVector.h"
#include "session/ControlMessage.h"
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

/// What became of a message that was to be sent.
enum class SendResult {
    Sent,
    NotConnected, ///< the session is not, or is closing
    NoTransport,
    SealingFailed,
    Refused, ///< by the transport; the message is lost
};

/// The sealed way between the two peers of one session: what goes out and comes in passes here, is
/// sealed or opened, and is counted for the quality monitor, if there is one. Main thread, but for
/// the cipher.
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

    /// The peer's counter in a message that could be opened.
    static uint64_t counterOf(const QByteArray& sealed);

    /// Seals a message and sends it. One that cannot be sent is not sealed, so the peer misses no
    /// counter.
    SendResult send(ChannelType channel, const ByteVector& message);

    /// The same for a message that is sealed already.
    SendResult sendSealed(ChannelType channel, const ByteVector& sealed);

    /// Blocks until the transport's queue is short enough for more of a file; false when it will
    /// not be. Received messages are handled inside.
    bool waitForRoom();

    void countFrame();
    void countDroppedFrame();

private:
    /// What stands in the way of sending; nothing when the link is open.
    std::optional<SendResult> obstacle() const;
    void measureLatency();

    const std::unique_ptr<AesGcmCipher> m_cipher;
    QPointer<ITransport> m_transport;
    QPointer<ConnectionQualityMonitor> m_monitor;
    QTimer m_latencyTimer;
    SessionState m_state = SessionState::Idle;
};

} // namespace corvane
