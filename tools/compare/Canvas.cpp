#include "compare/Canvas.h"

#include <algorithm>
#include <cstring>

namespace corvane::compare {

namespace {

constexpr char kFont[] = "fixed"; // the one that every X server has

xcb_rectangle_t rectangle(const Area& area) {
    return {static_cast<int16_t>(area.x), static_cast<int16_t>(area.y),
            static_cast<uint16_t>(area.width), static_cast<uint16_t>(area.height)};
}

} // namespace

Canvas::Canvas(X11Connection& connection, int width, int height)
    : m_connection(connection), m_width(width), m_height(height),
      m_picture(xcb_generate_id(connection.handle())),
      m_context(xcb_generate_id(connection.handle())) {
    xcb_connection_t* const server = connection.handle();
    xcb_create_pixmap(server, connection.screen().root_depth, m_picture, connection.root(),
                      static_cast<uint16_t>(width), static_cast<uint16_t>(height));
    const xcb_font_t font = xcb_generate_id(server);
    xcb_open_font(server, font, static_cast<uint16_t>(std::strlen(kFont)), kFont);
    const uint32_t values[] = {font, 0}; // no events about what could not be copied
    xcb_create_gc(server, m_context, m_picture, XCB_GC_FONT | XCB_GC_GRAPHICS_EXPOSURES, values);
    xcb_close_font(server, font);
}

void Canvas::setColours(uint32_t foreground, uint32_t background) {
    const uint32_t values[] = {foreground, background};
    xcb_change_gc(m_connection.handle(), m_context, XCB_GC_FOREGROUND | XCB_GC_BACKGROUND, values);
}

void Canvas::fill(const Area& area, uint32_t colour) {
    setColours(colour, 0);
    const xcb_rectangle_t filled = rectangle(area);
    xcb_poly_fill_rectangle(m_connection.handle(), m_picture, m_context, 1, &filled);
}

void Canvas::write(int x, int baseline, const std::string& text, uint32_t colour,
                   uint32_t background) {
    setColours(colour, background);
    xcb_image_text_8(
        m_connection.handle(), static_cast<uint8_t>(std::min<size_t>(text.size(), UINT8_MAX)),
        m_picture, m_context, static_cast<int16_t>(x), static_cast<int16_t>(baseline), text.data());
}

void Canvas::copy(const Canvas& from, const Area& area, int x, int y) {
    const xcb_rectangle_t source = rectangle(area);
    xcb_copy_area(m_connection.handle(), from.m_picture, m_picture, m_context, source.x, source.y,
                  static_cast<int16_t>(x), static_cast<int16_t>(y), source.width, source.height);
}

void Canvas::show(xcb_window_t window, const Area& area) {
    const xcb_rectangle_t shown = rectangle(area);
    xcb_copy_area(m_connection.handle(), m_picture, window, m_context, shown.x, shown.y, shown.x,
                  shown.y, shown.width, shown.height);
}

} // namespace corvane::compare
