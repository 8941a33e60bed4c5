#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <cstddef>
#include <cstdint>
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

Q_SIGNALS:
    void connected();
    void disconnected();
    void dataReceived(corvane::ChannelType channel, QByteArray data);
    void transportError(QString error);
};

} // namespace corvane

Q_DECLARE_METATYPE(corvane::ChannelType)
