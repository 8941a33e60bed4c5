#include "ui/WindowGeometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <algorithm>

namespace corvane {

namespace {

constexpr int kHomeWidth = 420;
constexpr QSize kViewerMinimum(800, 600);
constexpr QSize kViewerMax(1280, 720);

QSize initialViewerSize() {
    const QScreen* const screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? (screen->availableSize() * 3 / 4).boundedTo(kViewerMax) : kViewerMax;
}

/// Given only a new size, the window system would still treat the window as filling the screen.
void endFillingTheScreen(QWidget& window) {
    window.setWindowState(window.windowState() & ~(Qt::WindowFullScreen | Qt::WindowMaximized));
}

/// For a window that has grown beyond the edge of its screen.
void keepOnScreen(QWidget& window) {
    const QRect available = window.screen()->availableGeometry();
    QRect frame = window.frameGeometry();
    frame.moveBottomRight(
        {std::min(frame.right(), available.right()), std::min(frame.bottom(), available.bottom())});
    frame.moveTopLeft(
        {std::max(frame.left(), available.left()), std::max(frame.top(), available.top())});
    if (frame.topLeft() != window.pos()) {
        window.move(frame.topLeft());
    }
}

} // namespace

void fitToHomePage(QWidget& window, int preferredHeight) {
    window.setMinimumSize(kHomeWidth, 0);
    endFillingTheScreen(window);
    window.resize(kHomeWidth, preferredHeight);
}

void fitToViewerPage(QWidget& window) {
    window.setMinimumSize(kViewerMinimum);
    endFillingTheScreen(window);
    window.resize(initialViewerSize().expandedTo(kViewerMinimum));
    keepOnScreen(window);
}

void toggleFullScreen(QWidget& window) {
    if (window.isFullScreen()) {
        window.showNormal();
    } else {
        window.showFullScreen();
    }
}

} // namespace corvane
