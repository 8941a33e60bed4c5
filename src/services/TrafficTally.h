#pragma once

#include <cstdint>

namespace corvane {

/// What passed in one interval; counted up, then taken with `std::exchange`.
struct TrafficTally {
    int64_t frames = 0;
    int64_t bytes = 0;
};

} // namespace corvane
