#pragma once

#include "media/IScreenCaptureBackend.h"

namespace corvane {

/// What the backends that capture one monitor have in common: which monitor that is, and whether
/// they are capturing it.
class MonitorCaptureBackend : public IScreenCaptureBackend {
public:
    MonitorCaptureBackend() = default;
    MonitorCaptureBackend(const MonitorCaptureBackend&) = delete;
    MonitorCaptureBackend& operator=(const MonitorCaptureBackend&) = delete;

    /// Kept after the screen has been lost, so that recovery knows where to resume.
    MonitorInfo currentMonitor() const final { return m_monitor; }

    bool isInitialized() const final { return m_initialized; }

protected:
    /// Makes the monitor at `index` of `available` the current one. False when there is none or it
    /// has no area, which is logged in the name of `backend`.
    bool selectMonitor(const std::vector<MonitorInfo>& available, int index, const char* backend);

    MonitorInfo m_monitor;
    bool m_initialized = false;
};

} // namespace corvane
