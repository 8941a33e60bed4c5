#include "input/linux/KeyTranslation.h"
#include "input/NativeKey.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace corvane {
namespace {

int evdevCodeOf(uint32_t keyCode, uint32_t scanCode, bool extended = false) {
    const KeyTranslation* key = keyForEvent({.type = InputEventType::KeyPress,
                                             .keyCode = keyCode,
                                             .scanCode = scanCode,
                                             .extended = extended});
    return key == nullptr ? 0 : key->evdevCode;
}

TEST(KeyTranslation, EveryKeySurvivesTheWayThroughTheWire) {
    EXPECT_GE(keyTable().size(), 105U + 19U);
    for (const KeyTranslation& key : keyTable()) {
        EXPECT_LE(key.evdevCode + kXKeycodeOffset, 255U);
        const NativeKey wire = wireKeyFromNative(0, key.evdevCode + kXKeycodeOffset);
        const bool extended = (wire.scanCode & 0xE000) != 0;
        EXPECT_EQ(evdevCodeOf(wire.virtualKey, wire.scanCode, extended), key.evdevCode);
        EXPECT_EQ(evdevCodeOf(0, wire.scanCode), key.scanCode == 0 ? 0 : key.evdevCode);
        // The form in which window messages carry an extended scan code.
        if (extended) {
            const uint32_t message = 0x100 | (wire.scanCode & 0xFF);
            EXPECT_EQ(evdevCodeOf(wire.virtualKey, message), key.evdevCode);
        }
        if (key.virtualKey != 0) {
            const bool keypad = key.evdevCode == KEY_KPENTER;
            EXPECT_EQ(evdevCodeOf(key.virtualKey, 0, keypad), key.evdevCode);
        }
    }
}

TEST(KeyTranslation, KnownKeysOnTheWireWithLettersAndDigitsOfTheLayout) {
    const uint32_t cases[][4] = {
        {0, KEY_LEFT + 8, 0x25, 0xE04B},      {0, KEY_KP4 + 8, 0x64, 0x4B},
        {0, KEY_NUMLOCK + 8, 0x90, 0x45},     {0, KEY_SYSRQ + 8, 0x2C, 0xE037},
        {0, KEY_RIGHTCTRL + 8, 0xA3, 0xE01D}, {0, KEY_LEFTCTRL + 8, 0xA2, 0x1D},
        {0, KEY_PAUSE + 8, 0x13, 0},          {0, KEY_102ND + 8, 0xE2, 0x56},
        {0, KEY_KPENTER + 8, 0x0D, 0xE01C},   {0, KEY_A + 8, 0x41, 0x1E},
        {0, KEY_LEFTMETA + 8, 0x5B, 0xE05B},  {0, KEY_F12 + 8, 0x7B, 0x58},
        {'a', KEY_Q + 8, 'A', 0x10},          {'A', KEY_Q + 8, 'A', 0x10},
        {'&', KEY_1 + 8, '1', 0x02},          {'z', 3, 'Z', 0},
        {0, KEY_DELETE + 8, 0x2E, 0xE053},    {0xFF1B, 0xFFFFFFFF, 0, 0},
    };
    for (const auto& [keysym, xKeycode, virtualKey, scanCode] : cases) {
        const NativeKey wire = wireKeyFromNative(keysym, xKeycode);
        EXPECT_EQ(wire.virtualKey, virtualKey) << "keycode " << xKeycode;
        EXPECT_EQ(wire.scanCode, scanCode) << "keycode " << xKeycode;
    }
}

TEST(KeyTranslation, OtherSpellingsOfAKey) {
    EXPECT_EQ(evdevCodeOf(0x90, 0x145), KEY_NUMLOCK);
    EXPECT_EQ(evdevCodeOf(0x13, 0x45), KEY_PAUSE);
    EXPECT_EQ(evdevCodeOf(0x13, 0xE11D), KEY_PAUSE);
    EXPECT_EQ(evdevCodeOf(0x03, 0x146), KEY_PAUSE);
    EXPECT_EQ(evdevCodeOf(0x2C, 0x54), KEY_SYSRQ);
    EXPECT_EQ(evdevCodeOf(0x10, 0x136), KEY_RIGHTSHIFT);
    EXPECT_EQ(evdevCodeOf(0x25, 0x4B, true), KEY_LEFT);
    EXPECT_EQ(evdevCodeOf(0x11, 0), KEY_LEFTCTRL);
    EXPECT_EQ(evdevCodeOf(0x11, 0, true), KEY_RIGHTCTRL);
    EXPECT_EQ(evdevCodeOf(0x12, 0x138), KEY_RIGHTALT);
    EXPECT_EQ(evdevCodeOf('A', 0x10), KEY_Q);   // the scan code decides
    EXPECT_EQ(evdevCodeOf('A', 0xE07F), KEY_A); // unknown scan code
    EXPECT_EQ(evdevCodeOf(0, 0), 0);
    EXPECT_EQ(evdevCodeOf(0xFFFFFFFF, 0xFFFFFFFF), 0);
    EXPECT_EQ(evdevCodeOf(0x10041, 0), 0);
}

} // namespace
} // namespace corvane
