#pragma once

#include <cstdint>

namespace corvane {

/// Milliseconds of the monotonic clock, epoch arbitrary: the time stamp of frames and input events.
/// Any thread.
uint64_t monotonicMilliseconds();

} // namespace corvane
