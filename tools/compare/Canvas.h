#pragma once

#include "compare/SceneLayout.h"
#include "x11/X11Connection.h"

#include <memory>
#include <string>

namespace corvane::compare {

/// A window over a whole X display, or a picture of any size kept on its server. Drawing goes into
/// the picture; `show` makes an area of it visible at once.
class Canvas {
public:
    Canvas(X11Connection& connection, int width, int height);
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    void fill(const Area& area, uint32_t colour);
    void write(int x, int baseline, const std::string& text, uint32_t colour, uint32_t background);
    void copy(const Canvas& from, const Area& area, int x, int y);

    /// Copies an area of the picture into the window.
    void show(xcb_window_t window, const Area& area);

    int width() const { return m_width; }
    int height() const { return m_height; }

private:
    void setColours(uint32_t foreground, uint32_t background);

    X11Connection& m_connection;
    const int m_width;
    const int m_height;
    const xcb_pixmap_t m_picture;
    const xcb_gcontext_t m_context;
};

} // namespace corvane::compare
