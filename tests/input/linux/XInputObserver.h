#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>
#include <xcb/xcb.h>

#include <memory>

namespace corvane::test {

/// A second X client, with a window over the whole screen, that says what input arrived.
class XInputObserver {
public:
    explicit XInputObserver(const QString& display);

    QPoint pointer() const;
    bool isKeyDown(uint8_t keycode) const;

    /// Buttons and keys that went down or up since the last call, e.g. "button 1 down", "key 38
    /// up".
    QStringList takeEvents();

    /// Declares a part of the screen its primary monitor.
    void setPrimaryMonitor(const QRect& area);

private:
    void sync() const;

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_window_t m_root = XCB_WINDOW_NONE;
};

} // namespace corvane::test
