#pragma once

class QWidget;

namespace corvane {

/// Resizes the main window to suit its home page, which is `preferredHeight` high.
void fitToHomePage(QWidget& window, int preferredHeight);

/// Resizes the main window to a viewer's initial size, which is three quarters of the screen but no
/// more than most pictures need, and keeps it on its screen.
///
/// Either call ends a full-screen or maximised state.
void fitToViewerPage(QWidget& window);

/// Shows the window full screen, or restores it if it is full screen already.
void toggleFullScreen(QWidget& window);

} // namespace corvane
