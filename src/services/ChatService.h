#pragma once

#include "services/SendFunction.h"

#include <QDateTime>
#include <QObject>
#include <QString>

namespace corvane {

/// Turns what the user types into chat messages for the peer, and the peer's back into text with
/// the time it was sent. Main thread; keeps nothing between messages.
///
/// A message is the sender's wall clock (u64, milliseconds since the epoch), the text's length in
/// bytes (u16) and the text in UTF-8.
class ChatService : public QObject {
    Q_OBJECT

public:
    /// Without `send` messages go nowhere.
    explicit ChatService(SendFunction send, QObject* parent = nullptr);

    /// A text beyond 65535 bytes of UTF-8 is cut there.
    void sendMessage(const QString& text);

    /// One received message, without the control channel's tag; logged and dropped when malformed.
    void handleMessage(ByteSpan payload);

Q_SIGNALS:
    void messageReceived(QString text, QDateTime timestamp);

private:
    const SendFunction m_send;
};

} // namespace corvane
