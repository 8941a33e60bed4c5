#pragma once

#include "compare/Canvas.h"

#include <string>

namespace corvane::compare {

/// What the shared screen shows while it is measured: a desktop that always looks and moves the
/// same, with a clock that tells when a picture was drawn and a block that answers key presses.
class Scene {
public:
    enum class Work { Still, Clock, Type, Scroll, Drag, Terminal };

    explicit Scene(X11Connection& connection);

    xcb_window_t window() const { return m_window; }

    /// Brings the window to the front, gives it the keyboard and begins the work.
    void begin(Work work);

    /// Milliseconds between two steps of the current work; -1 when there is none.
    int interval() const;

    /// Draws the next picture and shows it.
    void step();

    void answerKey();
    void showAll();

private:
    void drawDesktop();
    void drawPage();
    void drawClock();
    void type();
    void scroll();
    void drag();
    void printLine();
    void restore(const Area& area);
    void show(const Area& area) { m_screen.show(m_window, area); }
    Area document() const;

    X11Connection& m_connection;
    const xcb_window_t m_window;
    Canvas m_screen;  ///< what the window shows
    Canvas m_desktop; ///< the same without what moves
    Canvas m_page;    ///< the text that scrolls by
    Canvas m_dragged; ///< the window that is dragged
    Work m_work = Work::Still;
    int m_step = 0;
    Area m_draggedAt;
    bool m_white = false; ///< the colour of the key block
};

} // namespace corvane::compare
