#pragma once

#include <cstdint>

namespace corvane::test {

/// What Qt reports of a key on this platform.
struct NativeKeyCode {
    uint32_t virtualKey; ///< X keysym
    uint32_t scanCode;   ///< X keycode
};

inline constexpr NativeKeyCode kNativeA{'a', 38};
inline constexpr NativeKeyCode kNativeRight{0xff53, 114};

} // namespace corvane::test
