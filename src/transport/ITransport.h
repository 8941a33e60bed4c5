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

/// Carries sealed messages between the two peers of a session, whole and per channel.
///
/// Lives on the main thread; every call and every signal happens there. The owner may destroy a
/// transport at any time except from inside one of its signals.
class ITransport : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;
    ~ITransport() override = default;

    /// Starts connecting; true when the attempt is under way. The outcome arrives as `connected` or
    /// `transportError`.
    virtual bool connect(const std::string& host, uint16_t port) = 0;

    /// Ends the connection for good. Emits nothing that the owner must wait for.
    virtual void disconnect() = 0;

    virtual bool isConnected() const = 0;

    /// Takes one message of `size` bytes over; the bytes are copied before the call returns. False
    /// when it was not accepted, in which case it is lost: nothing is queued.
    virtual bool send(ChannelType channel, const uint8_t* data, size_t size) = 0;

    /// Bytes taken over that have not left this process yet.
    virtual qint64 bytesQueued() const = 0;

    /// Blocks, without an event loop, until at most so many bytes are queued. Messages received
    /// meanwhile are delivered as ever, so that two peers which both wait do not wait for each
    /// other. False when the connection is gone or nothing moved for 30 seconds.
    virtual bool waitUntilQueued(qint64 atMost) = 0;

    /// The latest measure of the way there and back; nothing where there is none.
    virtual std::optional<double> roundTripMilliseconds() const = 0;

Q_SIGNALS:
    void connected();
    void disconnected();
    void dataReceived(corvane::ChannelType channel, QByteArray data);
    void transportError(QString error);
};

} // namespace corvane

Q_DECLARE_METATYPE(corvane::ChannelType)
