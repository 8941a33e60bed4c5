#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

#include <xcb/xcb.h>

#include <memory>
#include <optional>
#include <vector>

namespace corvane::harness {

/// A person's eyes and hands on an X display: looks at the screen, moves the pointer, clicks,
/// types. Coordinates are pixels of the root window. Failures of the connection show up as null
/// images and clicks that go nowhere.
class XDisplay {
public:
    explicit XDisplay(const QString& name);

    bool isConnected() const;
    QSize size() const;

    /// What is on the screen; null when it cannot be read.
    QImage grab(const QRect& area) const;
    QImage grab() const { return grab(QRect(QPoint(0, 0), size())); }

    /// Where the first visible window whose title starts with `title` lies.
    std::optional<QRect> findWindow(const QString& title) const;

    void movePointer(QPoint position);
    void click(QPoint position);

    /// Types Latin-1 text; characters that the display's keyboard lacks are left out.
    void type(const QString& text);

    /// Presses and releases one key by its X keysym, with `held` down meanwhile.
    void pressKey(xcb_keysym_t keysym, const std::vector<xcb_keysym_t>& held = {});

private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };
    struct Key {
        xcb_keycode_t code = 0;
        bool shifted = false;
    };

    Key findKey(xcb_keysym_t keysym) const;
    void fake(uint8_t type, uint8_t detail, QPoint position = {}, uint32_t delayMs = 0);
    QString title(xcb_window_t window) const;
    std::optional<QRect> findWindow(xcb_window_t parent, const QString& title) const;

    int m_screenNumber = 0;
    std::unique_ptr<xcb_connection_t, Disconnect> m_connection;
    xcb_screen_t* m_screen = nullptr;
};

inline constexpr xcb_keysym_t kKeyTab = 0xff09;
inline constexpr xcb_keysym_t kKeyReturn = 0xff0d;
inline constexpr xcb_keysym_t kKeyShift = 0xffe1;
inline constexpr xcb_keysym_t kKeyControl = 0xffe3;

} // namespace corvane::harness
