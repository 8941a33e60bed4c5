#include "input/NativeKey.h"

namespace corvane {

/// The wire uses Windows' own terms, so what Qt reports is passed through unchanged. Qt takes the
/// scan code from bits 16 to 24 of the key message: an extended key is 0x1xx (left arrow 0x14B,
/// right Ctrl 0x11D), never 0xE0xx, and modifiers have the virtual key shared by both sides.
NativeKey wireKeyFromNative(uint32_t nativeVirtualKey, uint32_t nativeScanCode) {
    return {.virtualKey = nativeVirtualKey, .scanCode = nativeScanCode};
}

} // namespace corvane
