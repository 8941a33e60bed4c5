#pragma once

#include "services/SendFunction.h"

#include <QDateTime>
#include <QObject>
#include <QString>

namespace corvane {

/// Encodes what the user types as chat messages for the peer, and decodes the peer's messages into
/// text and the time it was sent. Main thread; keeps no state between messages.
///
/// A message consists of the sender's wall clock (u64, milliseconds since the epoch), the text's
/// length in bytes (u16) and the text in UTF-8.
class ChatService : public QObject {
    Q_OBJECT

public:
    /// Without `send`, messages are dropped.
    explicit ChatService(SendFunction send, QObject* parent = nullptr);

    /// Text beyond 65535 bytes of UTF-8 is cut off.
    void sendMessage(const QString& text);

    /// One received message, without the control channel's tag; logged and dropped when malformed.
    void handleMessage(ByteSpan payload);

Q_SIGNALS:
    void messageReceived(QString text, QDateTime timestamp);

private:
    const SendFunction m_send;
};

} // namespace corvane
