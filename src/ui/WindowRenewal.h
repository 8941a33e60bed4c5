#pragma once

#include <functional>

class QWidget;

namespace corvane {

/// Runs `change`, for which Qt makes the system's window of `window` anew, and brings the window
/// back to the screen: in its place and state, and with the keyboard if it had it.
void renewWindow(QWidget& window, const std::function<void()>& change);

} // namespace corvane
