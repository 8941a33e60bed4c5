#pragma once

#include <xcb/xcb.h>

#include <memory>

namespace corvane {

/// A connection to an X server, and its default screen.
class X11Connection {
public:
    /// Connects to `display`, or to the server that DISPLAY names. Null on failure; `error` then
    /// holds the library's number.
    static std::unique_ptr<X11Connection> open(const char* display = nullptr, int* error = nullptr);

    ~X11Connection();
    X11Connection(const X11Connection&) = delete;
    X11Connection& operator=(const X11Connection&) = delete;

    xcb_connection_t* handle() const { return m_connection; }
    const xcb_screen_t& screen() const { return *m_screen; }
    xcb_window_t root() const { return m_screen->root; }

    /// False once the server has gone; the connection never recovers.
    bool isAlive() const { return error() == 0; }

    /// Why the connection is dead, as the library's number; 0 while it is alive.
    int error() const { return xcb_connection_has_error(m_connection); }

    bool hasExtension(xcb_extension_t& extension) const;

    /// The type of the first event that an extension of the server defines.
    uint8_t firstEvent(xcb_extension_t& extension) const;

    /// Whether the screen's pixels are 32-bit little-endian words with blue in the lowest byte,
    /// green and red above it.
    bool isBgrx() const;

    /// Bits per pixel of the screen's depth in an image; 0 when unknown.
    int bitsPerPixel() const;

private:
    X11Connection(xcb_connection_t* connection, xcb_screen_t* screen)
        : m_connection(connection), m_screen(screen) {}

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen;
};

} // namespace corvane
