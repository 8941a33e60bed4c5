#include "NativeKey.h"

namespace corvane {

/// The wire speaks Windows' own terms, so what Qt reports goes through as it is.
NativeKey wireKeyFromNative(uint32_t nativeVirtualKey, uint32_t nativeScanCode) {
    return {.virtualKey = nativeVirtualKey, .scanCode = nativeScanCode};
}

} // namespace corvane
