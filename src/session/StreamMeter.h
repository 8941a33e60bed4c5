#pragma once

#include "services/TrafficTally.h"

#include <cstddef>
#include <cstdint>

namespace corvane {

/// Logs the number of frames at debug level, once a second while frames arrive.
class StreamMeter {
public:
    void count(size_t bytes);

private:
    int64_t m_startedAtMs = 0;
    TrafficTally m_tally;
};

} // namespace corvane
