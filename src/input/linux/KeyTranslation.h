#pragma once

#include "input/InputEvent.h"

#include <cstdint>
#include <span>

namespace corvane {

/// One physical key in the three vocabularies that meet here.
struct KeyTranslation {
    uint16_t evdevCode;  ///< Linux input code; the X keycode is 8 more
    uint16_t virtualKey; ///< Windows virtual key, side-specific for modifiers; 0 = none of its own
    uint16_t scanCode;   ///< set-1 scan code, 0xE0xx when extended; 0 = goes by virtual key only
};

/// X keycodes are evdev codes shifted by this much.
inline constexpr uint32_t kXKeycodeOffset = 8;

/// The whole table. Evdev codes and non-zero scan codes are unique; of the virtual keys only that
/// of Enter appears twice, the main key first.
std::span<const KeyTranslation> keyTable();

/// The key that has this X keycode, or null.
const KeyTranslation* keyForXKeycode(uint32_t xKeycode);

/// The key that a key event means, or null when it is unknown. The scan code decides; the virtual
/// key is asked where the scan code is 0 or unknown.
const KeyTranslation* keyForEvent(const InputEvent& event);

} // namespace corvane
