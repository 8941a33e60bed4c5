#include "media/linux/CursorImage.h"

#include "x11/X11Connection.h"
#include "x11/XcbReply.h"

#include <xcb/xfixes.h>

#include <algorithm>

namespace corvane {

namespace {

constexpr uint32_t kOpaque = 255;

uint8_t blended(uint32_t over, uint32_t under, uint32_t alpha) {
    const uint32_t kept = (under * (kOpaque - alpha) + kOpaque / 2) / kOpaque;
    return static_cast<uint8_t>(std::min(over + kept, kOpaque));
}

void blendPixel(uint32_t argb, uint8_t* bgra) {
    const uint32_t alpha = argb >> 24;
    bgra[0] = blended(argb & 0xff, bgra[0], alpha);
    bgra[1] = blended(argb >> 8 & 0xff, bgra[1], alpha);
    bgra[2] = blended(argb >> 16 & 0xff, bgra[2], alpha);
}

} // namespace

std::optional<CursorImage> readCursor(const X11Connection& connection) {
    if (!connection.hasExtension(xcb_xfixes_id)) {
        return std::nullopt;
    }
    const XcbReply<xcb_xfixes_get_cursor_image_reply_t> reply(xcb_xfixes_get_cursor_image_reply(
        connection.handle(), xcb_xfixes_get_cursor_image(connection.handle()), nullptr));
    if (!reply) {
        return std::nullopt;
    }
    const uint32_t* const pixels = xcb_xfixes_get_cursor_image_cursor_image(reply.get());
    return CursorImage{
        .left = reply->x - reply->xhot,
        .top = reply->y - reply->yhot,
        .width = reply->width,
        .height = reply->height,
        .serial = reply->cursor_serial,
        .pixels = {pixels, pixels + xcb_xfixes_get_cursor_image_cursor_image_length(reply.get())},
    };
}

void blendCursor(const CursorImage& cursor, CapturedFrame& frame) {
    const int32_t firstColumn = std::max(0, -cursor.left);
    const int32_t endColumn = std::min(cursor.width, frame.width - cursor.left);
    const int32_t firstRow = std::max(0, -cursor.top);
    const int32_t endRow = std::min(cursor.height, frame.height - cursor.top);
    for (int32_t row = firstRow; row < endRow; ++row) {
        const uint32_t* const source =
            cursor.pixels.data() + static_cast<ptrdiff_t>(row) * cursor.width;
        uint8_t* const target =
            frame.data.data() + static_cast<ptrdiff_t>(cursor.top + row) * frame.stride;
        for (int32_t column = firstColumn; column < endColumn; ++column) {
            blendPixel(source[column], target + static_cast<ptrdiff_t>(cursor.left + column) * 4);
        }
    }
}

} // namespace corvane
