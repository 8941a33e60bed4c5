#pragma once

class QWidget;

namespace corvane {

/// Makes the main window as large as its home page, which is `preferredHeight` high, wants it.
void fitToHomePage(QWidget& window, int preferredHeight);

/// Makes the main window as large as a viewer should start, three quarters of the screen within
/// what most pictures need, and keeps it on its screen.
///
/// With either, a window that fills the screen no longer does.
void fitToViewerPage(QWidget& window);

/// Shows the window full screen, or normal if it is full screen already.
void toggleFullScreen(QWidget& window);

} // namespace corvane
