#include "input/NativeKey.h"

#include "input/linux/KeyTranslation.h"

namespace corvane {

namespace {

/// Virtual keys of letters and digits are their ASCII capitals, as are the Latin keysyms.
uint32_t virtualKeyFromKeysym(uint32_t keysym) {
    if (keysym >= 'a' && keysym <= 'z') {
        return keysym - 'a' + 'A';
    }
    const bool isLetter = keysym >= 'A' && keysym <= 'Z';
    const bool isDigit = keysym >= '0' && keysym <= '9';
    return isLetter || isDigit ? keysym : 0;
}

} // namespace

/// `nativeVirtualKey` is the X keysym, `nativeScanCode` the X keycode. The scan code identifies the
/// physical key. The virtual key follows the layout when the keysym is a Latin letter or a digit
/// (the key right of Tab is VK_A on a French layout) and the physical key otherwise.
NativeKey wireKeyFromNative(uint32_t nativeVirtualKey, uint32_t nativeScanCode) {
    NativeKey wire;
    if (const KeyTranslation* key = keyForXKeycode(nativeScanCode)) {
        wire.virtualKey = key->virtualKey;
        wire.scanCode = key->scanCode;
    }
    if (const uint32_t character = virtualKeyFromKeysym(nativeVirtualKey)) {
        wire.virtualKey = character;
    }
    return wire;
}

} // namespace corvane
