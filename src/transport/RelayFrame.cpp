#include "transport/RelayFrame.h"

#include <QtEndian>

namespace corvane {

QByteArray relayFrame(ChannelType channel, const uint8_t* payload, size_t size) {
    QByteArray frame;
    frame.reserve(static_cast<qsizetype>(kRelayFrameHeaderSize + size));
    frame.append(static_cast<char>(channel));
    const uint32_t length = qToBigEndian(static_cast<uint32_t>(size));
    frame.append(reinterpret_cast<const char*>(&length), sizeof(length));
    frame.append(reinterpret_cast<const char*>(payload), static_cast<qsizetype>(size));
    return frame;
}

} // namespace corvane
