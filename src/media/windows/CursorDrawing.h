#pragma once

#include "media/windows/GdiFunctions.h"

#include <cstdint>
#include <optional>

namespace corvane {

struct CapturedFrame;

/// The pointer while it is visible.
struct ShownCursor {
    HCURSOR handle = nullptr; ///< owned by the system
    POINT position = {};      ///< in the virtual desktop, pixels
};

/// No value while the pointer is hidden.
std::optional<ShownCursor> shownCursor(const GdiFunctions& functions);

/// Draws the pointer on `target`, whose top-left corner lies at (`left`, `top`) of the virtual
/// desktop. The image's corner is put at the pointer's position; the hot spot is not subtracted.
void drawCursor(const GdiFunctions& functions, const ShownCursor& cursor, HDC target, int32_t left,
                int32_t top);

/// Draws the pointer into a frame without row padding whose corner lies at (`left`, `top`). If GDI
/// refuses, the frame is left unchanged.
void drawCursor(const GdiFunctions& functions, const ShownCursor& cursor, CapturedFrame& frame,
                int32_t left, int32_t top);

} // namespace corvane
