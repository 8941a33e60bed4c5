#pragma once

#include <chrono>
#include <cstdint>
#include <map>

namespace corvane {

/// Finds out which of the peer's sealed messages never arrive, from the counters of those that do.
/// Messages of different channels overtake each other, so a missing one counts as lost only when it
/// has been missing for `reorderWindow`.
class LossDetector {
public:
    using Time = std::chrono::steady_clock::time_point;

    explicit LossDetector(std::chrono::milliseconds reorderWindow)
        : m_reorderWindow(reorderWindow) {}

    /// A message with this counter has arrived. The peer counts from 0. False when it is none that
    /// was waited for: it was here before, or has been given up.
    bool note(uint64_t counter, Time now);

    /// Whether messages were lost since the last call. They are not reported again.
    bool takeLoss(Time now);

    /// Nothing sent before this message matters any more.
    void forgetBefore(uint64_t counter);

    bool isAnythingMissing() const { return !m_missing.empty(); }

private:
    struct Gap {
        uint64_t end; ///< the first counter after the gap
        Time since;
    };

    /// More than any disorder of a network leaves open; a peer that invents counters gets no
    /// further.
    static constexpr size_t kMaxGaps = 256;

    bool close(uint64_t counter);

    const std::chrono::milliseconds m_reorderWindow;
    std::map<uint64_t, Gap> m_missing; ///< by the first counter missing
    uint64_t m_next = 0;
    bool m_overflowed = false;
};

} // namespace corvane
