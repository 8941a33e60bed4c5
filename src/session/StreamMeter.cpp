#include "session/StreamMeter.h"

#include "common/MonotonicClock.h"

#include <spdlog/spdlog.h>

namespace corvane {

void StreamMeter::count(size_t bytes) {
    constexpr int64_t kIntervalMs = 1000;
    const auto now = static_cast<int64_t>(monotonicMilliseconds());
    if (m_startedAtMs == 0) {
        m_startedAtMs = now;
        return;
    }
    ++m_tally.frames;
    m_tally.bytes += static_cast<int64_t>(bytes);
    if (now - m_startedAtMs >= kIntervalMs) {
        spdlog::debug("Video received: {} frames, {} bytes in {} ms", m_tally.frames, m_tally.bytes,
                      now - m_startedAtMs);
        m_tally = {};
        m_startedAtMs = now;
    }
}

} // namespace corvane
