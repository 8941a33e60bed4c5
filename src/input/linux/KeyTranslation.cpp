#include "input/linux/KeyTranslation.h"

#include <linux/input-event-codes.h>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

constexpr uint32_t kExtendedPrefix = 0xE000;
constexpr uint32_t kExtendedMessageBit = 0x100; // how window messages carry the prefix
constexpr uint32_t kPauseSequence = 0xE11D;
constexpr uint32_t kNumLockScanCode = 0x45;
constexpr uint32_t kVirtualPause = 0x13;

// Pause has no scan code of its own: it sends those of Ctrl and NumLock after a prefix that is
// easily lost on the way, so it is identified by its virtual key.
constexpr auto kKeys = std::to_array<KeyTranslation>({
    {KEY_ESC, 0x1B, 0x01},
    {KEY_1, '1', 0x02},
    {KEY_2, '2', 0x03},
    {KEY_3, '3', 0x04},
    {KEY_4, '4', 0x05},
    {KEY_5, '5', 0x06},
    {KEY_6, '6', 0x07},
    {KEY_7, '7', 0x08},
    {KEY_8, '8', 0x09},
    {KEY_9, '9', 0x0A},
    {KEY_0, '0', 0x0B},
    {KEY_MINUS, 0xBD, 0x0C},
    {KEY_EQUAL, 0xBB, 0x0D},
    {KEY_BACKSPACE, 0x08, 0x0E},
    {KEY_TAB, 0x09, 0x0F},
    {KEY_Q, 'Q', 0x10},
    {KEY_W, 'W', 0x11},
    {KEY_E, 'E', 0x12},
    {KEY_R, 'R', 0x13},
    {KEY_T, 'T', 0x14},
    {KEY_Y, 'Y', 0x15},
    {KEY_U, 'U', 0x16},
    {KEY_I, 'I', 0x17},
    {KEY_O, 'O', 0x18},
    {KEY_P, 'P', 0x19},
    {KEY_LEFTBRACE, 0xDB, 0x1A},
    {KEY_RIGHTBRACE, 0xDD, 0x1B},
    {KEY_ENTER, 0x0D, 0x1C},
    {KEY_LEFTCTRL, 0xA2, 0x1D},
    {KEY_A, 'A', 0x1E},
    {KEY_S, 'S', 0x1F},
    {KEY_D, 'D', 0x20},
    {KEY_F, 'F', 0x21},
    {KEY_G, 'G', 0x22},
    {KEY_H, 'H', 0x23},
    {KEY_J, 'J', 0x24},
    {KEY_K, 'K', 0x25},
    {KEY_L, 'L', 0x26},
    {KEY_SEMICOLON, 0xBA, 0x27},
    {KEY_APOSTROPHE, 0xDE, 0x28},
    {KEY_GRAVE, 0xC0, 0x29},
    {KEY_LEFTSHIFT, 0xA0, 0x2A},
    {KEY_BACKSLASH, 0xDC, 0x2B},
    {KEY_Z, 'Z', 0x2C},
    {KEY_X, 'X', 0x2D},
    {KEY_C, 'C', 0x2E},
    {KEY_V, 'V', 0x2F},
    {KEY_B, 'B', 0x30},
    {KEY_N, 'N', 0x31},
    {KEY_M, 'M', 0x32},
    {KEY_COMMA, 0xBC, 0x33},
    {KEY_DOT, 0xBE, 0x34},
    {KEY_SLASH, 0xBF, 0x35},
    {KEY_RIGHTSHIFT, 0xA1, 0x36},
    {KEY_LEFTALT, 0xA4, 0x38},
    {KEY_SPACE, 0x20, 0x39},
    {KEY_CAPSLOCK, 0x14, 0x3A},
    {KEY_102ND, 0xE2, 0x56},

    {KEY_F1, 0x70, 0x3B},
    {KEY_F2, 0x71, 0x3C},
    {KEY_F3, 0x72, 0x3D},
    {KEY_F4, 0x73, 0x3E},
    {KEY_F5, 0x74, 0x3F},
    {KEY_F6, 0x75, 0x40},
    {KEY_F7, 0x76, 0x41},
    {KEY_F8, 0x77, 0x42},
    {KEY_F9, 0x78, 0x43},
    {KEY_F10, 0x79, 0x44},
    {KEY_F11, 0x7A, 0x57},
    {KEY_F12, 0x7B, 0x58},
    {KEY_F13, 0x7C, 0x64},
    {KEY_F14, 0x7D, 0x65},
    {KEY_F15, 0x7E, 0x66},
    {KEY_F16, 0x7F, 0x67},
    {KEY_F17, 0x80, 0x68},
    {KEY_F18, 0x81, 0x69},
    {KEY_F19, 0x82, 0x6A},
    {KEY_F20, 0x83, 0x6B},
    {KEY_F21, 0x84, 0x6C},
    {KEY_F22, 0x85, 0x6D},
    {KEY_F23, 0x86, 0x6E},
    {KEY_F24, 0x87, 0x76},

    {KEY_NUMLOCK, 0x90, kNumLockScanCode},
    {KEY_KP7, 0x67, 0x47},
    {KEY_KP8, 0x68, 0x48},
    {KEY_KP9, 0x69, 0x49},
    {KEY_KPMINUS, 0x6D, 0x4A},
    {KEY_KP4, 0x64, 0x4B},
    {KEY_KP5, 0x65, 0x4C},
    {KEY_KP6, 0x66, 0x4D},
    {KEY_KPPLUS, 0x6B, 0x4E},
    {KEY_KP1, 0x61, 0x4F},
    {KEY_KP2, 0x62, 0x50},
    {KEY_KP3, 0x63, 0x51},
    {KEY_KP0, 0x60, 0x52},
    {KEY_KPDOT, 0x6E, 0x53},
    {KEY_KPASTERISK, 0x6A, 0x37},
    {KEY_KPSLASH, 0x6F, 0xE035},
    {KEY_KPENTER, 0x0D, 0xE01C},
    {KEY_KPEQUAL, 0x92, 0x59},
    {KEY_KPCOMMA, 0xC2, 0x7E},

    {KEY_RIGHTCTRL, 0xA3, 0xE01D},
    {KEY_RIGHTALT, 0xA5, 0xE038},
    {KEY_LEFTMETA, 0x5B, 0xE05B},
    {KEY_RIGHTMETA, 0x5C, 0xE05C},
    {KEY_COMPOSE, 0x5D, 0xE05D},
    {KEY_HOME, 0x24, 0xE047},
    {KEY_UP, 0x26, 0xE048},
    {KEY_PAGEUP, 0x21, 0xE049},
    {KEY_LEFT, 0x25, 0xE04B},
    {KEY_RIGHT, 0x27, 0xE04D},
    {KEY_END, 0x23, 0xE04F},
    {KEY_DOWN, 0x28, 0xE050},
    {KEY_PAGEDOWN, 0x22, 0xE051},
    {KEY_INSERT, 0x2D, 0xE052},
    {KEY_DELETE, 0x2E, 0xE053},
    {KEY_SYSRQ, 0x2C, 0xE037},
    {KEY_SCROLLLOCK, 0x91, 0x46},
    {KEY_PAUSE, kVirtualPause, 0},

    {KEY_MUTE, 0xAD, 0xE020},
    {KEY_VOLUMEDOWN, 0xAE, 0xE02E},
    {KEY_VOLUMEUP, 0xAF, 0xE030},
    {KEY_NEXTSONG, 0xB0, 0xE019},
    {KEY_PREVIOUSSONG, 0xB1, 0xE010},
    {KEY_STOPCD, 0xB2, 0xE024},
    {KEY_PLAYPAUSE, 0xB3, 0xE022},
    {KEY_MAIL, 0xB4, 0xE06C},
    {KEY_MEDIA, 0xB5, 0xE06D},
    {KEY_COMPUTER, 0xB6, 0xE06B},
    {KEY_CALC, 0xB7, 0xE021},
    {KEY_BACK, 0xA6, 0xE06A},
    {KEY_FORWARD, 0xA7, 0xE069},
    {KEY_REFRESH, 0xA8, 0xE067},
    {KEY_STOP, 0xA9, 0xE068},
    {KEY_SEARCH, 0xAA, 0xE065},
    {KEY_BOOKMARKS, 0xAB, 0xE066},
    {KEY_HOMEPAGE, 0xAC, 0xE032},
    {KEY_SLEEP, 0x5F, 0xE05F},

    {KEY_RO, 0, 0x73},
    {KEY_YEN, 0, 0x7D},
    {KEY_KATAKANAHIRAGANA, 0xF2, 0x70},
    {KEY_HENKAN, 0x1C, 0x79},
    {KEY_MUHENKAN, 0x1D, 0x7B},
    {KEY_HANGEUL, 0x15, 0x72},
    {KEY_HANJA, 0x19, 0x71},
});

struct Alias {
    uint32_t code;
    uint16_t evdevCode;
};

// Other scan codes that keyboards and systems use for keys in the table.
constexpr auto kScanCodeAliases = std::to_array<Alias>({
    {0x54, KEY_SYSRQ},        // PrintScreen while Alt is down
    {0xE045, KEY_NUMLOCK},    // window messages call NumLock extended
    {0xE046, KEY_PAUSE},      // Pause while Ctrl is down
    {0xE036, KEY_RIGHTSHIFT}, // some layouts call the right Shift extended
});

// Virtual keys that do not distinguish the two sides. The extended key is the right-hand one.
struct Sides {
    uint32_t virtualKey;
    uint16_t left;
    uint16_t right;
};
constexpr auto kSidelessKeys = std::to_array<Sides>({
    {0x10, KEY_LEFTSHIFT, KEY_RIGHTSHIFT},
    {0x11, KEY_LEFTCTRL, KEY_RIGHTCTRL},
    {0x12, KEY_LEFTALT, KEY_RIGHTALT},
    {0x0D, KEY_ENTER, KEY_KPENTER},
    {0x03, KEY_PAUSE, KEY_PAUSE},
});

template <typename Predicate>
const KeyTranslation* findKey(Predicate matches) {
    const auto found = std::find_if(kKeys.begin(), kKeys.end(), matches);
    return found == kKeys.end() ? nullptr : &*found;
}

const KeyTranslation* keyForEvdevCode(uint32_t evdevCode) {
    return findKey([=](const KeyTranslation& key) { return key.evdevCode == evdevCode; });
}

bool isExtended(const InputEvent& event) {
    return event.extended || (event.scanCode & (kExtendedPrefix | kExtendedMessageBit)) != 0;
}

const KeyTranslation* keyForScanCode(const InputEvent& event) {
    const uint32_t low = event.scanCode & 0xFF;
    const bool pauseNamed = event.keyCode == kVirtualPause && low == kNumLockScanCode;
    if (event.scanCode == kPauseSequence || pauseNamed) {
        return keyForEvdevCode(KEY_PAUSE);
    }
    if (low == 0) {
        return nullptr;
    }
    const uint32_t scanCode = isExtended(event) ? kExtendedPrefix | low : low;
    for (const Alias& alias : kScanCodeAliases) {
        if (alias.code == scanCode) {
            return keyForEvdevCode(alias.evdevCode);
        }
    }
    return findKey([=](const KeyTranslation& key) { return key.scanCode == scanCode; });
}

const KeyTranslation* keyForVirtualKey(const InputEvent& event) {
    if (event.keyCode == 0) {
        return nullptr;
    }
    for (const Sides& sides : kSidelessKeys) {
        if (sides.virtualKey == event.keyCode) {
            return keyForEvdevCode(isExtended(event) ? sides.right : sides.left);
        }
    }
    return findKey([&](const KeyTranslation& key) { return key.virtualKey == event.keyCode; });
}

} // namespace

std::span<const KeyTranslation> keyTable() {
    return kKeys;
}

const KeyTranslation* keyForXKeycode(uint32_t xKeycode) {
    return xKeycode < kXKeycodeOffset ? nullptr : keyForEvdevCode(xKeycode - kXKeycodeOffset);
}

const KeyTranslation* keyForEvent(const InputEvent& event) {
    const KeyTranslation* key = keyForScanCode(event);
    return key != nullptr ? key : keyForVirtualKey(event);
}

} // namespace corvane
