#pragma once

#include "common/ByteVector.h"

#include <QMetaType>

#include <cstddef>
#include <cstdint>

namespace corvane {

enum class InputEventType : uint8_t {
    None = 0,
    MouseMove = 1,
    MouseButtonPress = 2,
    MouseButtonRelease = 3,
    MouseWheel = 4,
    KeyPress = 5,
    KeyRelease = 6,
};

enum class MouseButton : uint8_t {
    Left = 1,
    Right = 2,
    Middle = 3,
    Back = 4,
    Forward = 5,
};

/// One mouse or keyboard action on its way from the viewer to the shared machine.
///
/// The mouse fields are meaningful only for the four mouse types, the key fields only for the two
/// key types. Values come from the wire unchecked: `type` and `button` may lie outside their
/// enumerations and the coordinates outside 0..1.
struct InputEvent {
    InputEventType type = InputEventType::None;
    uint64_t timestampMs = 0; ///< sender's monotonic clock
    double x = 0.0;           ///< fraction of the screen's width, 0 = left edge
    double y = 0.0;           ///< fraction of the screen's height, 0 = top edge
    MouseButton button = MouseButton::Left;
    int16_t wheelDelta = 0; ///< 120 per notch, positive away from the user
    uint32_t keyCode = 0;   ///< Windows virtual key
    uint32_t scanCode = 0;  ///< as in `NativeKey`
    bool extended = false;

    /// The wire record: 28 bytes for mouse types, 18 for key types, little-endian.
    /// Throws std::runtime_error for any other type.
    ByteVector serialize() const;

    /// Reads one record; bytes after it are ignored. Throws std::runtime_error when the bytes do
    /// not contain one.
    static InputEvent deserialize(const uint8_t* data, size_t size);
};

} // namespace corvane

Q_DECLARE_METATYPE(corvane::InputEvent)
