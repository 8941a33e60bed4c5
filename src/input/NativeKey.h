#pragma once

#include <cstdint>

namespace corvane {

/// A key as it is named on the wire.
struct NativeKey {
    uint32_t virtualKey = 0; ///< Windows virtual key, 0 = unknown
    uint32_t scanCode =
        0; ///< set-1 scan code; when extended 0xE0xx, or 0x1xx from Windows; 0 = none
};

/// Translates what Qt reports for a key event on this platform (`nativeVirtualKey`,
/// `nativeScanCode`) into the wire's terms. One implementation per platform.
NativeKey wireKeyFromNative(uint32_t nativeVirtualKey, uint32_t nativeScanCode);

} // namespace corvane
