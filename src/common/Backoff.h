#pragma once

#include <chrono>

namespace corvane {

/// How long to wait before one attempt after another: twice as long each time, up to a limit.
class Backoff {
public:
    using Duration = std::chrono::milliseconds;

    explicit constexpr Backoff(Duration initial, Duration max = Duration::max())
        : m_initial(initial), m_max(max), m_next(initial) {}

    /// The wait before the next attempt.
    constexpr Duration next() {
        const Duration wait = m_next;
        m_next = wait > m_max / 2 ? m_max : 2 * wait;
        return wait;
    }

    /// Starts over, after an attempt that succeeded.
    constexpr void reset() { m_next = m_initial; }

private:
    Duration m_initial;
    Duration m_max;
    Duration m_next;
};

} // namespace corvane
