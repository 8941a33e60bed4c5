#pragma once

#include <cstdint>

namespace corvane::test {

/// What Qt reports of a key on this platform.
struct NativeKeyCode {
    uint32_t virtualKey; ///< Windows virtual key
    uint32_t scanCode;   ///< set-1 scan code
};

inline constexpr NativeKeyCode kNativeA{0x41, 0x1e};
inline constexpr NativeKeyCode kNativeRight{0x27, 0xe04d};

} // namespace corvane::test
