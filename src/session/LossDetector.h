#pragma once

#include <chrono>
#include <cstdint>
#include <map>

namespace corvane {

/// Finds out, from the counters of the peer's sealed messages that arrive, which ones never do.
/// Messages of different channels overtake each other, so a missing one counts as lost only after
/// it has been missing for `reorderWindow`.
class LossDetector {
public:
    using Time = std::chrono::steady_clock::time_point;

    explicit LossDetector(std::chrono::milliseconds reorderWindow)
        : m_reorderWindow(reorderWindow) {}

    /// Records that the message with this counter has arrived; the peer counts from 0. False when
    /// it was not awaited: it is a repetition, or has already been given up.
    bool note(uint64_t counter, Time now);

    /// Whether messages were lost since the last call. They are not reported again.
    bool takeLoss(Time now);

    /// Ignores losses of messages sent before this one.
    void forgetBefore(uint64_t counter);

    bool isAnythingMissing() const { return !m_missing.empty(); }

private:
    struct Gap {
        uint64_t end; ///< the first counter after the gap
        Time since;
    };

    /// More gaps than reordering in a network leaves open; limits what a peer that invents counters
    /// can cause.
    static constexpr size_t kMaxGaps = 256;

    bool close(uint64_t counter);

    const std::chrono::milliseconds m_reorderWindow;
    std::map<uint64_t, Gap> m_missing; ///< by the first counter missing
    uint64_t m_next = 0;
    bool m_overflowed = false;
};

} // namespace corvane
