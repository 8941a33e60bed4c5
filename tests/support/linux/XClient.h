#pragma once

#include <QRect>
#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace corvane::test {

struct XDeleter {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    void operator()(void* reply) const { std::free(reply); }
};

template <typename T>
using XReply = std::unique_ptr<T, XDeleter>;

/// Another program on the display that DISPLAY names. What it asks for is done when a call returns.
class XClient {
public:
    XClient() : m_connection(xcb_connect(nullptr, nullptr)) {}

    xcb_connection_t* handle() const { return m_connection.get(); }
    xcb_window_t root() const;
    void sync() const;

    /// A window of one colour that the window manager, if any, leaves alone.
    xcb_window_t showWindow(const QRect& area, uint32_t colour, uint32_t eventMask = 0) const;

    /// Declares a part of the screen a monitor.
    void setMonitor(const char* name, const QRect& area, bool primary = false) const;
    void deleteMonitor(const char* name) const;

private:
    xcb_atom_t atom(const char* name) const;

    std::unique_ptr<xcb_connection_t, XDeleter> m_connection;
};

} // namespace corvane::test
