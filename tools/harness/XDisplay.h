#pragma once

#include "x11/X11Connection.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace corvane::harness {

/// A person's eyes and hands on an X display: looks at the screen, moves the pointer, clicks and
/// types. Coordinates are pixels of the root window. If the connection fails, images are null and
/// clicks have no effect.
class XDisplay {
public:
    explicit XDisplay(const QString& name);

    /// As given, e.g. ":3".
    const QString& name() const { return m_name; }

    bool isConnected() const;
    QSize size() const;

    /// What is on the screen; null when it cannot be read.
    QImage grab(const QRect& area) const;
    QImage grab() const { return grab(QRect(QPoint(0, 0), size())); }

    /// The area of the first visible window whose title starts with `title`.
    std::optional<QRect> findWindow(const QString& title) const;

    /// Does for such a window what a window manager would: lets it fill the screen and gives it the
    /// keyboard. False when there is none.
    bool fillScreen(const QString& title);

    /// The area of the topmost menu or similar window that touches `area`: one shown in front of
    /// all others without the window manager's help.
    std::optional<QRect> findPopup(const QRect& area) const;

    /// The title of the window that has the keyboard; empty if none has it.
    QString keyboardWindow() const;

    void movePointer(QPoint position);
    void click(QPoint position);

    /// Types Latin-1 text; characters missing from the display's keyboard are left out.
    void type(const QString& text);

    /// Presses and releases the key with an X keysym while holding `held` down.
    void pressKey(xcb_keysym_t keysym, const std::vector<xcb_keysym_t>& held = {});

    /// Presses and releases an unshifted key without the pauses of a person's fingers.
    void tapKey(xcb_keysym_t keysym);

private:
    struct Key {
        xcb_keycode_t code = 0;
        bool shifted = false;
    };

    Key findKey(xcb_keysym_t keysym) const;
    void fake(uint8_t type, uint8_t detail, QPoint position = {}, uint32_t delayMs = 0);
    QString title(xcb_window_t window) const;
    xcb_window_t searchWindow(xcb_window_t parent, const QString& title) const;
    std::vector<xcb_window_t> visibleChildren(xcb_window_t parent) const;
    std::optional<QRect> rectangle(xcb_window_t window) const;

    const QString m_name;
    const std::unique_ptr<X11Connection> m_connection; ///< null where there is no server
};

inline constexpr xcb_keysym_t kKeyBackspace = 0xff08;
inline constexpr xcb_keysym_t kKeyTab = 0xff09;
inline constexpr xcb_keysym_t kKeyReturn = 0xff0d;
inline constexpr xcb_keysym_t kKeyEscape = 0xff1b;
inline constexpr xcb_keysym_t kKeyHome = 0xff50;
inline constexpr xcb_keysym_t kKeyRight = 0xff53;
inline constexpr xcb_keysym_t kKeyDown = 0xff54;
inline constexpr xcb_keysym_t kKeyShift = 0xffe1;
inline constexpr xcb_keysym_t kKeyControl = 0xffe3;

} // namespace corvane::harness
