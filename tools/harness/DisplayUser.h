#pragma once

#include "harness/XClipboard.h"
#include "harness/XDisplay.h"

#include <QImage>
#include <QPoint>
#include <QString>

#include <vector>

namespace corvane::harness {

/// A person working with windows, which are identified by the beginnings of their titles, on a
/// borrowed display. Every action waits, with the event loop running, until its result shows, and
/// returns whether it did.
class DisplayUser {
public:
    explicit DisplayUser(XDisplay& display);

    bool sees(const QString& title);
    bool seesNo(const QString& title);

    /// Clicks at `place`, counted from the window's left and top, or from right and bottom where
    /// negative, until the window has the keyboard.
    bool clickInto(const QString& title, QPoint place);

    /// Presses a key in the window that has the keyboard until a window titled `title` has it.
    bool openByKey(const QString& title, xcb_keysym_t key, const std::vector<xcb_keysym_t>& held);

    /// Presses Escape in a window that has the keyboard.
    bool escape(const QString& title);

    bool hasKeyboard(const QString& title) const;

    /// What Ctrl+C copies where the keyboard focus is; empty when there is nothing.
    QString copied();

    /// The window once its picture stands still, or as it is after a few seconds.
    QImage look(const QString& title);

    XDisplay& display() { return m_display; }
    XClipboard& clipboard() { return m_clipboard; }

private:
    XDisplay& m_display;
    XClipboard m_clipboard;
};

} // namespace corvane::harness
