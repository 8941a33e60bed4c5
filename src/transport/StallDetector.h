#pragma once

#include <QtGlobal>

#include <chrono>

namespace corvane {

/// Tells when a send queue that holds something has moved nothing for some time.
class StallDetector {
public:
    using Clock = std::chrono::steady_clock;

    explicit StallDetector(std::chrono::milliseconds limit) : m_limit(limit) {}

    /// To be asked again and again. `accepted`: bytes given to the queue so far; `queued`: bytes of
    /// them that are still in it. The time runs from the first look at a queue that holds
    /// something: nobody may have looked for long before.
    bool reached(qint64 accepted, qint64 queued) {
        const qint64 sent = accepted - queued;
        if (!m_waiting || queued == 0 || sent > m_sent) {
            restart();
        }
        m_waiting = queued > 0;
        m_sent = sent;
        return Clock::now() >= deadline();
    }

    /// When the limit is reached unless something moves before.
    Clock::time_point deadline() const { return m_movedAt + m_limit; }
    std::chrono::milliseconds limit() const { return m_limit; }

private:
    void restart() { m_movedAt = Clock::now(); }

    const std::chrono::milliseconds m_limit;
    bool m_waiting = false; ///< at the last look
    qint64 m_sent = 0;
    Clock::time_point m_movedAt = Clock::now();
};

} // namespace corvane
