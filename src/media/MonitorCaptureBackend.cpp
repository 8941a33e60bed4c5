#include "media/MonitorCaptureBackend.h"

#include <spdlog/spdlog.h>

namespace corvane {

bool MonitorCaptureBackend::selectMonitor(const std::vector<MonitorInfo>& available, int index,
                                          const char* backend) {
    if (index < 0 || static_cast<size_t>(index) >= available.size()) {
        spdlog::error("{}: monitor index {} not found (have {} monitors)", backend, index,
                      available.size());
        return false;
    }
    m_monitor = available[static_cast<size_t>(index)];
    if (m_monitor.width < 1 || m_monitor.height < 1) {
        spdlog::error("{}: invalid monitor dimensions {}x{}", backend, m_monitor.width,
                      m_monitor.height);
        return false;
    }
    return true;
}

} // namespace corvane
