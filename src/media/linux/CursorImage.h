#pragma once

#include "media/CapturedFrame.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace corvane {

class X11Connection;

/// The pointer's image at the place where it is drawn, the hot spot already subtracted.
struct CursorImage {
    int32_t left = 0;             ///< pixels
    int32_t top = 0;              ///< pixels
    int32_t width = 0;            ///< pixels
    int32_t height = 0;           ///< pixels
    uint32_t serial = 0;          ///< changes with the shape
    std::vector<uint32_t> pixels; ///< premultiplied ARGB, row by row
};

/// The pointer in screen coordinates; no value if the server has none or cannot tell. Waits for the
/// server, so that everything it sent before has arrived.
std::optional<CursorImage> readCursor(const X11Connection& connection);

/// Draws `cursor`, given in the frame's coordinates, onto the frame. What lies outside is clipped.
void blendCursor(const CursorImage& cursor, CapturedFrame& frame);

} // namespace corvane
