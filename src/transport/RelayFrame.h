#pragma once

#include "transport/ITransport.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>

namespace corvane {

// A relay frame on the TCP stream, the same in both directions:
//   1 byte   channel (0 or 1)
//   4 bytes  payload length, big-endian
//   n bytes  payload
inline constexpr size_t kRelayFrameHeaderSize = 1 + 4;
inline constexpr size_t kRelayMaxPayload = 16 * 1024 * 1024;

/// The whole frame in one buffer. `size` must not exceed `kRelayMaxPayload`.
QByteArray relayFrame(ChannelType channel, const uint8_t* payload, size_t size);

} // namespace corvane
