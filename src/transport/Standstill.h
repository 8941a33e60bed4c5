#pragma once

#include <QtGlobal>

#include <chrono>

namespace corvane {

/// Tells when a send queue that holds something has moved nothing for some time.
class Standstill {
public:
    using Clock = std::chrono::steady_clock;

    explicit Standstill(std::chrono::milliseconds limit) : m_limit(limit) {}

    /// Has the time run from now on.
    void restart() { m_movedAt = Clock::now(); }

    /// To be asked again and again. `accepted`: bytes given to the queue so far; `queued`: bytes of
    /// them that are still in it.
    bool reached(qint64 accepted, qint64 queued) {
        const qint64 sent = accepted - queued;
        if (queued == 0 || sent > m_sent) {
            restart();
        }
        m_sent = sent;
        return Clock::now() >= deadline();
    }

    /// When the limit is reached unless something moves before.
    Clock::time_point deadline() const { return m_movedAt + m_limit; }
    std::chrono::milliseconds limit() const { return m_limit; }

private:
    const std::chrono::milliseconds m_limit;
    qint64 m_sent = 0;
    Clock::time_point m_movedAt = Clock::now();
};

} // namespace corvane
