#pragma once

#include "crypto/AesGcmCipher.h"
#include "session/ControlMessage.h"
#include "session/SessionState.h"
#include "transport/ITransport.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

namespace corvane {

class ConnectionQualityMonitor;

/// The sealed way between the two peers of one session: what goes out and comes in passes here, is
/// sealed or opened, and is counted for the quality monitor, if there is one. Main thread, but for
/// the cipher.
class SessionLink : public QObject {
    Q_OBJECT

public:
    /// The largest control message that can be sent, tag byte included.
    static const size_t kMaxControlMessage;

    /// Throws std::invalid_argument when the key material has the wrong size.
    SessionLink(const ByteVector& key, const ByteVector& baseIv, QObject* parent = nullptr);
    ~SessionLink() override;

    AesGcmCipher& cipher() { return m_cipher; }

    /// Borrowed; null for none.
    void setTransport(ITransport* transport);
    bool hasTransport() const { return !m_transport.isNull(); }

    void setState(SessionState state) { m_state = state; }
    SessionState state() const { return m_state; }

    /// Nothing is sent before the session is connected or after it closes.
    bool isOpen() const { return m_state == SessionState::Connected && hasTransport(); }

    /// Borrowed; null for none.
    void setQualityMonitor(ConnectionQualityMonitor* monitor);

    /// Empty on failure.
    ByteVector seal(const ByteVector& message);
    ByteVector open(const QByteArray& sealed);

    /// The peer's counter in a message that could be opened.
    static uint64_t counterOf(const QByteArray& sealed);

    /// False when the link is not open or the transport did not take the message.
    bool send(ChannelType channel, const ByteVector& sealed);

    /// Blocks until the transport's queue is short enough for more of a file; false when it will
    /// not be. Received messages are handled inside.
    bool waitForRoom();

    void countFrame();
    void countDroppedFrame();

private:
    void measureLatency();

    AesGcmCipher m_cipher;
    QPointer<ITransport> m_transport;
    QPointer<ConnectionQualityMonitor> m_monitor;
    QTimer m_latencyTimer;
    SessionState m_state = SessionState::Idle;
};

} // namespace corvane
