#pragma once

#include "x11/X11Connection.h"
#include "x11/XcbReply.h"

#include <QRect>
#include <sys/uio.h>
#include <xcb/randr.h>
#include <xcb/xcb.h>
#include <xcb/xcbext.h>

#include <cstring>
#include <memory>

namespace corvane::test {

/// Another program on the display that DISPLAY names. What it asks for is done when a call returns.
class XClient {
public:
    xcb_connection_t* handle() const { return m_connection->handle(); }
    xcb_window_t root() const { return m_connection->root(); }

    void sync() const {
        XcbReply<xcb_get_input_focus_reply_t>(
            xcb_get_input_focus_reply(handle(), xcb_get_input_focus(handle()), nullptr));
    }

    /// A window of one colour that the window manager, if any, leaves alone.
    xcb_window_t showWindow(const QRect& area, uint32_t colour, uint32_t eventMask = 0) const {
        const xcb_window_t window = xcb_generate_id(handle());
        const uint32_t values[] = {colour, true, eventMask};
        xcb_create_window(handle(), XCB_COPY_FROM_PARENT, window, root(),
                          static_cast<int16_t>(area.x()), static_cast<int16_t>(area.y()),
                          static_cast<uint16_t>(area.width()), static_cast<uint16_t>(area.height()),
                          0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                          XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
        xcb_map_window(handle(), window);
        sync();
        return window;
    }

    /// Declares a part of the screen a monitor.
    void setMonitor(const char* name, const QRect& area, bool primary = false) const {
        xcb_randr_monitor_info_t info{};
        info.name = atom(name);
        info.primary = primary;
        info.x = static_cast<int16_t>(area.x());
        info.y = static_cast<int16_t>(area.y());
        info.width = static_cast<uint16_t>(area.width());
        info.height = static_cast<uint16_t>(area.height());
        // The library's own function for this request passes a length it never sets.
        xcb_randr_set_monitor_request_t request{};
        request.window = root();
        iovec parts[] = {{}, {}, {&request, sizeof(request)}, {&info, sizeof(info)}};
        const xcb_protocol_request_t protocol{2, &xcb_randr_id, XCB_RANDR_SET_MONITOR, true};
        xcb_send_request(handle(), 0, parts + 2, &protocol);
        sync();
    }

    void deleteMonitor(const char* name) const {
        xcb_randr_delete_monitor(handle(), root(), atom(name));
        sync();
    }

private:
    xcb_atom_t atom(const char* name) const {
        const auto length = static_cast<uint16_t>(std::strlen(name));
        const XcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(handle(), xcb_intern_atom(handle(), 0, length, name), nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    const std::unique_ptr<X11Connection> m_connection = X11Connection::open();
};

} // namespace corvane::test
