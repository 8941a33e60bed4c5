#include "media/windows/CursorDrawing.h"

#include "media/CapturedFrame.h"
#include "media/windows/GdiSurface.h"

#include <cstring>

namespace corvane {

std::optional<ShownCursor> shownCursor(const GdiFunctions& functions) {
    CURSORINFO info = {};
    info.cbSize = sizeof(info);
    const bool known = functions.getCursorInfo(&info) != FALSE;
    if (!known || (info.flags & CURSOR_SHOWING) == 0 || info.hCursor == nullptr) {
        return std::nullopt;
    }
    return ShownCursor{info.hCursor, info.ptScreenPos};
}

void drawCursor(const GdiFunctions& functions, const ShownCursor& cursor, HDC target, int32_t left,
                int32_t top) {
    functions.drawIcon(target, cursor.position.x - left, cursor.position.y - top, cursor.handle, 0,
                       0, 0, nullptr, DI_NORMAL);
}

void drawCursor(const GdiFunctions& functions, const ShownCursor& cursor, CapturedFrame& frame,
                int32_t left, int32_t top) {
    GdiSurface surface(functions);
    if (surface.create(frame.width, frame.height) != nullptr) {
        return;
    }
    std::memcpy(surface.bits(), frame.data.data(), frame.data.size());
    drawCursor(functions, cursor, surface.context(), left, top);
    functions.flush();
    std::memcpy(frame.data.data(), surface.bits(), frame.data.size());
}

} // namespace corvane
