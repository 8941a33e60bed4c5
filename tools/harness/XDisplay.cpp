#include "harness/XDisplay.h"

#include "x11/XcbReply.h"

#include <xcb/xtest.h>

namespace corvane::harness {

namespace {

constexpr uint8_t kLeftButton = 1;

/// A release and a press of the same key in the same millisecond would look like auto-repeat.
constexpr uint32_t kKeyDelayMs = 8;

} // namespace

XDisplay::XDisplay(const QString& name)
    : m_name(name), m_connection(X11Connection::open(name.toLatin1().constData())) {}

bool XDisplay::isConnected() const {
    return m_connection && m_connection->isAlive();
}

QSize XDisplay::size() const {
    return m_connection ? QSize(m_connection->screen().width_in_pixels,
                                m_connection->screen().height_in_pixels)
                        : QSize();
}

QImage XDisplay::grab(const QRect& area) const {
    const QRect visible = area & QRect(QPoint(0, 0), size());
    if (!isConnected() || visible.isEmpty()) {
        return {};
    }
    const XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(
        m_connection->handle(),
        xcb_get_image(m_connection->handle(), XCB_IMAGE_FORMAT_Z_PIXMAP, m_connection->root(),
                      static_cast<int16_t>(visible.x()), static_cast<int16_t>(visible.y()),
                      static_cast<uint16_t>(visible.width()),
                      static_cast<uint16_t>(visible.height()), ~0U),
        nullptr));
    const int stride = visible.width() * 4;
    if (!reply || xcb_get_image_data_length(reply.get()) < stride * visible.height()) {
        return {};
    }
    return QImage(xcb_get_image_data(reply.get()), visible.width(), visible.height(), stride,
                  QImage::Format_RGB32)
        .copy();
}

QString XDisplay::title(xcb_window_t window) const {
    constexpr uint32_t kMaxTitle = 256; // four-byte units
    const XcbReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(m_connection->handle(),
                               xcb_get_property(m_connection->handle(), 0, window, XCB_ATOM_WM_NAME,
                                                XCB_GET_PROPERTY_TYPE_ANY, 0, kMaxTitle),
                               nullptr));
    return reply ? QString::fromUtf8(static_cast<const char*>(xcb_get_property_value(reply.get())),
                                     xcb_get_property_value_length(reply.get()))
                 : QString();
}

std::optional<QRect> XDisplay::findWindow(const QString& title) const {
    const xcb_window_t window =
        isConnected() ? searchWindow(m_connection->root(), title) : xcb_window_t{XCB_WINDOW_NONE};
    return window != XCB_WINDOW_NONE ? rectangle(window) : std::nullopt;
}

bool XDisplay::fillScreen(const QString& title) {
    const xcb_window_t window =
        isConnected() ? searchWindow(m_connection->root(), title) : xcb_window_t{XCB_WINDOW_NONE};
    if (window == XCB_WINDOW_NONE) {
        return false;
    }
    const uint32_t place[] = {0, 0, static_cast<uint32_t>(size().width()),
                              static_cast<uint32_t>(size().height())};
    xcb_configure_window(m_connection->handle(), window,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT,
                         place);
    xcb_set_input_focus(m_connection->handle(), XCB_INPUT_FOCUS_POINTER_ROOT, window,
                        XCB_CURRENT_TIME);
    xcb_flush(m_connection->handle());
    return true;
}

xcb_window_t XDisplay::searchWindow(xcb_window_t parent, const QString& wanted) const {
    for (const xcb_window_t window : visibleChildren(parent)) {
        if (title(window).startsWith(wanted) && rectangle(window)) {
            return window;
        }
        if (const xcb_window_t found = searchWindow(window, wanted); found != XCB_WINDOW_NONE) {
            return found;
        }
    }
    return XCB_WINDOW_NONE;
}

std::vector<xcb_window_t> XDisplay::visibleChildren(xcb_window_t parent) const {
    xcb_connection_t* const connection = m_connection->handle();
    const XcbReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, parent), nullptr));
    std::vector<xcb_window_t> visible;
    for (int i = 0; tree && i < xcb_query_tree_children_length(tree.get()); ++i) {
        const xcb_window_t window = xcb_query_tree_children(tree.get())[i];
        const XcbReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(
                connection, xcb_get_window_attributes(connection, window), nullptr));
        if (attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE) {
            visible.push_back(window);
        }
    }
    return visible;
}

std::optional<QRect> XDisplay::rectangle(xcb_window_t window) const {
    xcb_connection_t* const connection = m_connection->handle();
    const XcbReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    const XcbReply<xcb_translate_coordinates_reply_t> origin(xcb_translate_coordinates_reply(
        connection, xcb_translate_coordinates(connection, window, m_connection->root(), 0, 0),
        nullptr));
    return geometry && origin ? std::optional(QRect(origin->dst_x, origin->dst_y, geometry->width,
                                                    geometry->height))
                              : std::nullopt;
}

std::optional<QRect> XDisplay::findPopup(const QRect& area) const {
    if (!isConnected()) {
        return std::nullopt;
    }
    const std::vector<xcb_window_t> windows = visibleChildren(m_connection->root());
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) { // topmost first
        const XcbReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(
                m_connection->handle(), xcb_get_window_attributes(m_connection->handle(), *window),
                nullptr));
        const auto found = rectangle(*window);
        if (attributes && attributes->override_redirect != 0 && found && found->intersects(area)) {
            return found;
        }
    }
    return std::nullopt;
}

QString XDisplay::keyboardWindow() const {
    if (!isConnected()) {
        return {};
    }
    xcb_connection_t* const connection = m_connection->handle();
    const XcbReply<xcb_get_input_focus_reply_t> focus(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    xcb_window_t window = focus ? focus->focus : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    // The focus may be in an inner window; the title belongs to the outer one.
    while (window > XCB_INPUT_FOCUS_POINTER_ROOT && window != m_connection->root()) {
        if (const QString found = title(window); !found.isEmpty()) {
            return found;
        }
        const XcbReply<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, window), nullptr));
        window = tree ? tree->parent : static_cast<xcb_window_t>(XCB_WINDOW_NONE);
    }
    return {};
}

void XDisplay::movePointer(QPoint position) {
    fake(XCB_MOTION_NOTIFY, 0, position);
}

void XDisplay::click(QPoint position) {
    movePointer(position);
    fake(XCB_BUTTON_PRESS, kLeftButton);
    fake(XCB_BUTTON_RELEASE, kLeftButton);
}

void XDisplay::type(const QString& text) {
    for (const QChar character : text) {
        pressKey(character.unicode());
    }
}

void XDisplay::pressKey(xcb_keysym_t keysym, const std::vector<xcb_keysym_t>& held) {
    const Key key = findKey(keysym);
    if (key.code == 0) {
        return;
    }
    std::vector<xcb_keycode_t> down;
    if (key.shifted) {
        down.push_back(findKey(kKeyShift).code);
    }
    for (const xcb_keysym_t modifier : held) {
        down.push_back(findKey(modifier).code);
    }
    down.push_back(key.code);
    for (const xcb_keycode_t code : down) {
        fake(XCB_KEY_PRESS, code, {}, kKeyDelayMs);
    }
    for (auto code = down.rbegin(); code != down.rend(); ++code) {
        fake(XCB_KEY_RELEASE, *code, {}, kKeyDelayMs);
    }
}

void XDisplay::tapKey(xcb_keysym_t keysym) {
    if (const Key key = findKey(keysym); key.code != 0) {
        fake(XCB_KEY_PRESS, key.code);
        fake(XCB_KEY_RELEASE, key.code);
    }
}

XDisplay::Key XDisplay::findKey(xcb_keysym_t keysym) const {
    if (!isConnected()) {
        return {};
    }
    const xcb_setup_t* const setup = xcb_get_setup(m_connection->handle());
    const auto count = static_cast<uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const XcbReply<xcb_get_keyboard_mapping_reply_t> mapping(xcb_get_keyboard_mapping_reply(
        m_connection->handle(),
        xcb_get_keyboard_mapping(m_connection->handle(), setup->min_keycode, count), nullptr));
    if (!mapping) {
        return {};
    }
    const xcb_keysym_t* const keysyms = xcb_get_keyboard_mapping_keysyms(mapping.get());
    const int perKey = mapping->keysyms_per_keycode;
    for (int level = 0; level < qMin(perKey, 2); ++level) {
        for (int key = 0; key < count; ++key) {
            if (keysyms[key * perKey + level] == keysym) {
                return {static_cast<xcb_keycode_t>(setup->min_keycode + key), level == 1};
            }
        }
    }
    return {};
}

void XDisplay::fake(uint8_t type, uint8_t detail, QPoint position, uint32_t delayMs) {
    if (!isConnected()) {
        return;
    }
    xcb_test_fake_input(m_connection->handle(), type, detail, delayMs, m_connection->root(),
                        static_cast<int16_t>(position.x()), static_cast<int16_t>(position.y()), 0);
    xcb_flush(m_connection->handle());
}

} // namespace corvane::harness
