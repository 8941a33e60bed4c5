#pragma once

#include <chrono>
#include <functional>

namespace corvane::harness {

/// Waits, with the event loop running, until `condition` holds. False when it never did.
bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds timeout);

/// Does `step`, and repeats it when its `result` does not show within a few seconds: a key press or
/// click is easily lost while a window is still opening. False when the result never showed.
bool achieve(const std::function<void()>& step, const std::function<bool()>& result);

} // namespace corvane::harness
