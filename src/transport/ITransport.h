#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

namespace corvane {

/// The value is the byte on the wire.
enum class ChannelType : uint8_t {
    Control = 0, ///< input, chat, clipboard, file transfer, session commands
    Video = 1,   ///< encoded frames
};

/// Carries sealed messages between the two peers of a session. Message boundaries are preserved,
/// and each channel is independent of the other.
///
/// Lives on the main thread: all calls and signals happen there. The owner may destroy a transport
/// at any time except from inside one of its signals.
///
/// `connect`, `disconnect` and `disconnected` hide QObject's functions of the same names on
/// purpose: they are what every transport calls these operations. Write `QObject::connect` for the
/// others.
class ITransport : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~ITransport() override = default;

    /// Starts connecting. True if the attempt is under way; its outcome arrives as `connected` or
    /// `transportError`.
    virtual bool connect(const std::string& host, uint16_t port) = 0;

    /// Closes the connection for good. The owner need not wait for any signal.
    virtual void disconnect() = 0;

    virtual bool isConnected() const = 0;

    /// Queues one message of `size` bytes, copying it before the call returns. False if the message
    /// was refused; it is then lost.
    virtual bool send(ChannelType channel, const uint8_t* data, size_t size) = 0;

    /// The same for a control message that may wait: other messages overtake it where one
    /// connection carries both channels. Such messages keep their own order.
    virtual bool sendBulk(const uint8_t* data, size_t size) {
        return send(ChannelType::Control, data, size);
    }

    /// Bytes accepted that have not been handed to the network yet, as far as that can be told.
    virtual qint64 bytesQueued() const = 0;

    /// The part of them that is video, at most.
    virtual qint64 videoQueued() { return bytesQueued(); }

    /// Blocks, without running an event loop, until at most `atMost` bytes are queued. Messages
    /// received in the meantime are still delivered, so two peers that both wait cannot deadlock.
    /// False if the connection was lost or the queue stalled for 30 seconds.
    virtual bool waitUntilQueued(qint64 atMost) = 0;

    /// The latest round-trip time; no value if the transport cannot measure it.
    virtual std::optional<double> roundTripMilliseconds() const = 0;

Q_SIGNALS:
    void connected();
    void disconnected();
    void dataReceived(corvane::ChannelType channel, QByteArray data);
    void transportError(QString error);
};

} // namespace corvane

Q_DECLARE_METATYPE(corvane::ChannelType)
