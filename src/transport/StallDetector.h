#pragma once

#include <QtGlobal>

#include <chrono>

namespace corvane {

/// Detects that a non-empty send queue has not moved for some time.
class StallDetector {
public:
    using Clock = std::chrono::steady_clock;

    explicit StallDetector(std::chrono::milliseconds limit) : m_limit(limit) {}

    /// Call repeatedly. `accepted`: bytes added to the queue so far; `queued`: how many of them are
    /// still in it. Time counts from the first call that finds the queue non-empty, because calls
    /// may be far apart before that.
    bool reached(qint64 accepted, qint64 queued) {
        const qint64 sent = accepted - queued;
        if (!m_waiting || queued == 0 || sent > m_sent) {
            restart();
        }
        m_waiting = queued > 0;
        m_sent = sent;
        return Clock::now() >= deadline();
    }

    /// When the queue counts as stalled unless something moves before.
    Clock::time_point deadline() const { return m_movedAt + m_limit; }
    std::chrono::milliseconds limit() const { return m_limit; }

private:
    void restart() { m_movedAt = Clock::now(); }

    const std::chrono::milliseconds m_limit;
    bool m_waiting = false; ///< at the last call
    qint64 m_sent = 0;
    Clock::time_point m_movedAt = Clock::now();
};

} // namespace corvane
