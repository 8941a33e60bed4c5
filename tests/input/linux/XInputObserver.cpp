#include "XInputObserver.h"

#include <sys/uio.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

#include <cstdlib>
#include <cstring>

namespace corvane::test {

namespace {

template <typename T>
using Reply = std::unique_ptr<T, decltype([](T* reply) { std::free(reply); })>;

xcb_atom_t atom(xcb_connection_t* connection, const char* name) {
    const auto cookie =
        xcb_intern_atom(connection, false, static_cast<uint16_t>(std::strlen(name)), name);
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace

XInputObserver::XInputObserver(const QString& display)
    : m_connection(xcb_connect(display.toLatin1().constData(), nullptr)) {
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get())).data;
    m_root = screen->root;
    const xcb_window_t window = xcb_generate_id(m_connection.get());
    const uint32_t values[] = {true, XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                         XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE};
    xcb_create_window(m_connection.get(), XCB_COPY_FROM_PARENT, window, m_root, 0, 0,
                      screen->width_in_pixels, screen->height_in_pixels, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(m_connection.get(), window);
    xcb_set_input_focus(m_connection.get(), XCB_INPUT_FOCUS_POINTER_ROOT,
                        XCB_INPUT_FOCUS_POINTER_ROOT, XCB_CURRENT_TIME);
    sync();
}

QPoint XInputObserver::pointer() const {
    const Reply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        m_connection.get(), xcb_query_pointer(m_connection.get(), m_root), nullptr));
    return reply ? QPoint(reply->root_x, reply->root_y) : QPoint(-1, -1);
}

bool XInputObserver::isKeyDown(uint8_t keycode) const {
    const Reply<xcb_query_keymap_reply_t> reply(
        xcb_query_keymap_reply(m_connection.get(), xcb_query_keymap(m_connection.get()), nullptr));
    return reply && (reply->keys[keycode / 8] >> (keycode % 8) & 1) != 0;
}

QStringList XInputObserver::takeEvents() {
    sync();
    QStringList events;
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        const uint8_t type = event->response_type & 0x7F;
        const bool button = type == XCB_BUTTON_PRESS || type == XCB_BUTTON_RELEASE;
        const bool down = type == XCB_BUTTON_PRESS || type == XCB_KEY_PRESS;
        if (button || type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE) {
            const auto detail = reinterpret_cast<const xcb_key_press_event_t*>(event.get())->detail;
            events.append(QStringLiteral("%1 %2 %3")
                              .arg(button ? QStringLiteral("button") : QStringLiteral("key"))
                              .arg(detail)
                              .arg(down ? QStringLiteral("down") : QStringLiteral("up")));
        }
    }
    return events;
}

void XInputObserver::setPrimaryMonitor(const QRect& area) {
    xcb_randr_monitor_info_t info = {};
    info.name = atom(m_connection.get(), "test-monitor");
    info.primary = true;
    info.x = static_cast<int16_t>(area.x());
    info.y = static_cast<int16_t>(area.y());
    info.width = static_cast<uint16_t>(area.width());
    info.height = static_cast<uint16_t>(area.height());
    // libxcb's own wrapper of this request miscounts its parts and aborts.
    xcb_randr_set_monitor_request_t request = {};
    request.window = m_root;
    iovec parts[4] = {};
    parts[2] = {&request, sizeof(request)};
    parts[3] = {&info, sizeof(info)};
    const xcb_protocol_request_t protocol = {2, &xcb_randr_id, XCB_RANDR_SET_MONITOR, true};
    xcb_send_request(m_connection.get(), 0, parts + 2, &protocol);
    sync();
}

void XInputObserver::sync() const {
    Reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus_reply(
        m_connection.get(), xcb_get_input_focus(m_connection.get()), nullptr));
}

} // namespace corvane::test
