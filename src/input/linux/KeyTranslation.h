#pragma once

#include "input/InputEvent.h"

#include <cstdint>
#include <span>

namespace corvane {

/// One physical key in the three vocabularies used here.
struct KeyTranslation {
    uint16_t evdevCode;  ///< Linux input code; the X keycode is 8 more
    uint16_t virtualKey; ///< Windows virtual key, side-specific for modifiers; 0 = none of its own
    uint16_t scanCode;   ///< set-1 scan code, 0xE0xx when extended; 0 = has only a virtual key
};

/// X keycodes are evdev codes plus this offset.
inline constexpr uint32_t kXKeycodeOffset = 8;

/// The whole table. Evdev codes and non-zero scan codes are unique; of the virtual keys, only
/// Enter's appears twice, the main key first.
std::span<const KeyTranslation> keyTable();

/// The key with this X keycode, or null.
const KeyTranslation* keyForXKeycode(uint32_t xKeycode);

/// The key that an event stands for, or null when it is unknown. The scan code decides; where it is
/// 0 or unknown, the virtual key does.
const KeyTranslation* keyForEvent(const InputEvent& event);

} // namespace corvane
