#include "session/StreamMeter.h"

#include "common/MonotonicClock.h"

#include <spdlog/spdlog.h>

namespace corvane {

void StreamMeter::count(size_t bytes) {
    constexpr int64_t kIntervalMs = 1000;
    const int64_t now = monotonicMilliseconds();
    if (m_startedAtMs == 0) {
        m_startedAtMs = now;
        return;
    }
    ++m_frames;
    m_bytes += bytes;
    if (now - m_startedAtMs >= kIntervalMs) {
        spdlog::debug("Video received: {} frames, {} bytes in {} ms", m_frames, m_bytes,
                      now - m_startedAtMs);
        *this = {};
        m_startedAtMs = now;
    }
}

} // namespace corvane
