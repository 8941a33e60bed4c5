#include "common/MonotonicClock.h"

#include <chrono>

namespace corvane {

uint64_t monotonicMilliseconds() {
    const auto sinceEpoch = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<uint64_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(sinceEpoch).count());
}

} // namespace corvane
