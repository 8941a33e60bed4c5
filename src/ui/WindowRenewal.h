#pragma once

#include <functional>

class QWidget;

namespace corvane {

/// Runs `change`, which makes Qt recreate the native window of `window`, and brings the window back
/// to the screen in its place and state, with the keyboard focus if it had it.
void renewWindow(QWidget& window, const std::function<void()>& change);

} // namespace corvane
