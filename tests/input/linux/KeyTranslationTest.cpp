#include "KeyTranslation.h"
#include "NativeKey.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <map>
#include <set>

namespace corvane {
namespace {

InputEvent keyEvent(uint32_t keyCode, uint32_t scanCode, bool extended = false) {
    InputEvent event;
    event.type = InputEventType::KeyPress;
    event.keyCode = keyCode;
    event.scanCode = scanCode;
    event.extended = extended;
    return event;
}

int evdevCodeOf(const InputEvent& event) {
    const KeyTranslation* key = keyForEvent(event);
    return key == nullptr ? 0 : key->evdevCode;
}

TEST(KeyTranslation, TableIsUnambiguousAndFitsXKeycodes) {
    std::set<uint32_t> evdevCodes;
    std::set<uint32_t> scanCodes;
    std::map<uint32_t, int> virtualKeys;
    for (const KeyTranslation& key : keyTable()) {
        EXPECT_TRUE(evdevCodes.insert(key.evdevCode).second) << "evdev " << key.evdevCode;
        EXPECT_LE(key.evdevCode + kXKeycodeOffset, 255U);
        if (key.scanCode != 0) {
            EXPECT_TRUE(scanCodes.insert(key.scanCode).second) << "scan code " << key.scanCode;
        }
        if (key.virtualKey != 0) {
            ++virtualKeys[key.virtualKey];
        }
        EXPECT_TRUE(key.scanCode != 0 || key.virtualKey != 0) << "evdev " << key.evdevCode;
    }
    for (const auto& [virtualKey, count] : virtualKeys) {
        EXPECT_EQ(count, virtualKey == 0x0D ? 2 : 1) << "virtual key " << virtualKey;
    }
    EXPECT_GE(keyTable().size(), 105U + 19U);
}

TEST(KeyTranslation, EveryKeySurvivesTheWayThroughTheWire) {
    for (const KeyTranslation& key : keyTable()) {
        const NativeKey wire = wireKeyFromNative(0, key.evdevCode + kXKeycodeOffset);
        const bool extended = (wire.scanCode & 0xE000) != 0;
        EXPECT_EQ(evdevCodeOf(keyEvent(wire.virtualKey, wire.scanCode, extended)), key.evdevCode);
        EXPECT_EQ(evdevCodeOf(keyEvent(0, wire.scanCode)), key.scanCode == 0 ? 0 : key.evdevCode);
        // The form in which window messages carry an extended scan code.
        if (extended) {
            const uint32_t message = 0x100 | (wire.scanCode & 0xFF);
            EXPECT_EQ(evdevCodeOf(keyEvent(wire.virtualKey, message)), key.evdevCode);
        }
        if (key.virtualKey != 0) {
            const bool keypad = key.evdevCode == KEY_KPENTER;
            EXPECT_EQ(evdevCodeOf(keyEvent(key.virtualKey, 0, keypad)), key.evdevCode);
        }
    }
}

TEST(KeyTranslation, KnownKeys) {
    const struct {
        int evdevCode;
        uint32_t virtualKey;
        uint32_t scanCode;
    } cases[] = {
        {KEY_LEFT, 0x25, 0xE04B},   {KEY_KP4, 0x64, 0x4B},         {KEY_NUMLOCK, 0x90, 0x45},
        {KEY_SYSRQ, 0x2C, 0xE037},  {KEY_RIGHTCTRL, 0xA3, 0xE01D}, {KEY_LEFTCTRL, 0xA2, 0x1D},
        {KEY_PAUSE, 0x13, 0},       {KEY_102ND, 0xE2, 0x56},       {KEY_KPENTER, 0x0D, 0xE01C},
        {KEY_A, 0x41, 0x1E},        {KEY_LEFTMETA, 0x5B, 0xE05B},  {KEY_F12, 0x7B, 0x58},
        {KEY_DELETE, 0x2E, 0xE053},
    };
    for (const auto& item : cases) {
        const NativeKey wire =
            wireKeyFromNative(0, static_cast<uint32_t>(item.evdevCode) + kXKeycodeOffset);
        EXPECT_EQ(wire.virtualKey, item.virtualKey) << "evdev " << item.evdevCode;
        EXPECT_EQ(wire.scanCode, item.scanCode) << "evdev " << item.evdevCode;
    }
}

TEST(KeyTranslation, OtherSpellingsOfAKey) {
    const struct {
        InputEvent event;
        int evdevCode;
    } cases[] = {
        {keyEvent(0x90, 0x145), KEY_NUMLOCK},
        {keyEvent(0x13, 0x45), KEY_PAUSE},
        {keyEvent(0x13, 0xE11D), KEY_PAUSE},
        {keyEvent(0x03, 0x146), KEY_PAUSE},
        {keyEvent(0x2C, 0x54), KEY_SYSRQ},
        {keyEvent(0x10, 0x136), KEY_RIGHTSHIFT},
        {keyEvent(0x25, 0x4B, true), KEY_LEFT},
        {keyEvent(0x11, 0), KEY_LEFTCTRL},
        {keyEvent(0x11, 0, true), KEY_RIGHTCTRL},
        {keyEvent(0x12, 0x138), KEY_RIGHTALT},
        {keyEvent('A', 0x10), KEY_Q},   // the scan code decides
        {keyEvent('A', 0xE07F), KEY_A}, // unknown scan code
        {keyEvent(0, 0), 0},
        {keyEvent(0xFFFFFFFF, 0xFFFFFFFF), 0},
        {keyEvent(0x10041, 0), 0},
    };
    for (const auto& item : cases) {
        EXPECT_EQ(evdevCodeOf(item.event), item.evdevCode)
            << std::hex << item.event.keyCode << " / " << item.event.scanCode;
    }
}

TEST(KeyTranslation, VirtualKeyFollowsTheLayoutForLettersAndDigits) {
    const uint32_t qKey = KEY_Q + kXKeycodeOffset;
    EXPECT_EQ(wireKeyFromNative('a', qKey).virtualKey, 'A');
    EXPECT_EQ(wireKeyFromNative('A', qKey).virtualKey, 'A');
    EXPECT_EQ(wireKeyFromNative('a', qKey).scanCode, 0x10U);
    EXPECT_EQ(wireKeyFromNative('&', KEY_1 + kXKeycodeOffset).virtualKey, '1');
    EXPECT_EQ(wireKeyFromNative('z', 3).virtualKey, 'Z');
    EXPECT_EQ(wireKeyFromNative('z', 3).scanCode, 0U);
    EXPECT_EQ(wireKeyFromNative(0xFF1B, 0xFFFFFFFF).virtualKey, 0U);
}

} // namespace
} // namespace corvane
