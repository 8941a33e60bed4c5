#include "x11/X11Connection.h"

namespace corvane {

namespace {

xcb_screen_t* screenAt(const xcb_setup_t* setup, int number) {
    auto screens = xcb_setup_roots_iterator(setup);
    for (; screens.rem > 0 && number > 0; --number) {
        xcb_screen_next(&screens);
    }
    return screens.rem > 0 ? screens.data : nullptr;
}

const xcb_visualtype_t* rootVisual(const xcb_screen_t& screen) {
    auto depths = xcb_screen_allowed_depths_iterator(&screen);
    for (; depths.rem > 0; xcb_depth_next(&depths)) {
        auto visuals = xcb_depth_visuals_iterator(depths.data);
        for (; visuals.rem > 0; xcb_visualtype_next(&visuals)) {
            if (visuals.data->visual_id == screen.root_visual) {
                return visuals.data;
            }
        }
    }
    return nullptr;
}

} // namespace

std::unique_ptr<X11Connection> X11Connection::open(const char* display, int* error) {
    int screenNumber = 0;
    xcb_connection_t* const connection = xcb_connect(display, &screenNumber);
    const int failure = xcb_connection_has_error(connection);
    xcb_screen_t* const screen =
        failure == 0 ? screenAt(xcb_get_setup(connection), screenNumber) : nullptr;
    if (screen == nullptr) {
        if (error != nullptr) {
            *error = failure != 0 ? failure : XCB_CONN_CLOSED_INVALID_SCREEN;
        }
        xcb_disconnect(connection);
        return nullptr;
    }
    return std::unique_ptr<X11Connection>(new X11Connection(connection, screen));
}

X11Connection::~X11Connection() {
    xcb_disconnect(m_connection);
}

bool X11Connection::hasExtension(xcb_extension_t& extension) const {
    const auto* const data = xcb_get_extension_data(m_connection, &extension);
    return data != nullptr && data->present != 0;
}

uint8_t X11Connection::firstEvent(xcb_extension_t& extension) const {
    return xcb_get_extension_data(m_connection, &extension)->first_event;
}

int X11Connection::bitsPerPixel() const {
    auto formats = xcb_setup_pixmap_formats_iterator(xcb_get_setup(m_connection));
    for (; formats.rem > 0; xcb_format_next(&formats)) {
        if (formats.data->depth == m_screen->root_depth) {
            return formats.data->bits_per_pixel;
        }
    }
    return 0;
}

bool X11Connection::isBgrx() const {
    const xcb_visualtype_t* const visual = rootVisual(*m_screen);
    return xcb_get_setup(m_connection)->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST &&
           bitsPerPixel() == 32 && visual != nullptr && visual->red_mask == 0xff0000 &&
           visual->green_mask == 0x00ff00 && visual->blue_mask == 0x0000ff;
}

} // namespace corvane
