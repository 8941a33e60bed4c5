#pragma once

#include <cstdint>

namespace corvane {

/// The traffic of one interval: counted as it passes, then taken with `std::exchange`.
struct TrafficTally {
    int64_t frames = 0;
    int64_t bytes = 0;
};

} // namespace corvane
