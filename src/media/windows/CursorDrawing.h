#pragma once

#include "media/windows/GdiFunctions.h"

#include <cstdint>
#include <optional>

namespace corvane {

struct CapturedFrame;

/// The pointer while it is showing.
struct ShownCursor {
    HCURSOR handle = nullptr; ///< the system's
    POINT position = {};      ///< virtual desktop, pixels
};

/// No value while the pointer is hidden.
std::optional<ShownCursor> shownCursor(const GdiFunctions& functions);

/// Draws the pointer on `target`, whose top-left corner lies at (`left`, `top`) of the virtual
/// desktop. The image's corner goes to the pointer's position; the hot spot is not taken off.
void drawCursor(const GdiFunctions& functions, const ShownCursor& cursor, HDC target, int32_t left,
                int32_t top);

/// Draws the pointer into a frame without row padding whose corner lies at (`left`, `top`). Where
/// GDI refuses, the frame stays as it is.
void drawCursor(const GdiFunctions& functions, const ShownCursor& cursor, CapturedFrame& frame,
                int32_t left, int32_t top);

} // namespace corvane
