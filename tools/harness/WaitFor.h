#pragma once

#include <chrono>
#include <functional>

namespace corvane::harness {

/// Waits, with the event loop running, until `condition` holds. False when it never did.
bool waitFor(const std::function<bool()>& condition, std::chrono::milliseconds timeout);

/// Does `step`, again where its `result` does not show within a few seconds: a key or a click gets
/// lost while a window is still coming up. False when it never showed.
bool achieve(const std::function<void()>& step, const std::function<bool()>& result);

} // namespace corvane::harness
