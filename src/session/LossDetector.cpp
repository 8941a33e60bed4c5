#include "session/LossDetector.h"

#include <limits>
#include <utility>

namespace corvane {

bool LossDetector::note(uint64_t counter, Time now) {
    if (counter < m_next) {
        return close(counter);
    }
    if (counter > m_next) {
        m_missing.emplace(m_next, Gap{counter, now});
    }
    m_next = counter < std::numeric_limits<uint64_t>::max() ? counter + 1 : counter;
    if (m_missing.size() > kMaxGaps) {
        m_missing.clear();
        m_overflowed = true;
    }
    return true;
}

bool LossDetector::close(uint64_t counter) {
    auto gap = m_missing.upper_bound(counter);
    if (gap == m_missing.begin()) {
        return false;
    }
    --gap;
    const auto [begin, rest] = *gap;
    if (counter >= rest.end) {
        return false;
    }
    m_missing.erase(gap);
    if (begin < counter) {
        m_missing.emplace(begin, Gap{counter, rest.since});
    }
    if (counter + 1 < rest.end) {
        m_missing.emplace(counter + 1, rest);
    }
    return true;
}

bool LossDetector::takeLoss(Time now) {
    const auto lost = std::erase_if(
        m_missing, [&](const auto& gap) { return now - gap.second.since >= m_reorderWindow; });
    return std::exchange(m_overflowed, false) || lost > 0;
}

void LossDetector::forgetBefore(uint64_t counter) {
    m_missing.erase(m_missing.begin(), m_missing.lower_bound(counter));
}

} // namespace corvane
