#pragma once

#include <cstdint>

namespace corvane {

/// First byte of every message on the control channel, sealed together with what follows it.
enum class ControlTag : uint8_t {
    InputEvent = 0x01,
    KeyframeRequest = 0x02,
    Command = 0x03,
    Clipboard = 0x04,
    FileTransfer = 0x05,
    Chat = 0x06,
};

} // namespace corvane
