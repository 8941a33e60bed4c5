#pragma once

#include "media/IScreenCaptureBackend.h"
#include "media/windows/GdiFunctions.h"
#include "media/windows/GdiSurface.h"

namespace corvane {

/// Captures one monitor with GDI, pointer drawn in: a whole frame with every call. Works where
/// desktop duplication does not, remote-desktop sessions among them. It never reports a lost
/// screen: a copy that fails costs a warning and the round.
class GdiCaptureBackend : public IScreenCaptureBackend {
public:
    explicit GdiCaptureBackend(GdiFunctions functions = {});
    ~GdiCaptureBackend() override;
    GdiCaptureBackend(const GdiCaptureBackend&) = delete;
    GdiCaptureBackend& operator=(const GdiCaptureBackend&) = delete;

    bool initialize(int monitorIndex) override;
    void shutdown() override;
    std::unique_ptr<CapturedFrame> captureFrame() override;

    /// In the system's order, unsorted.
    std::vector<MonitorInfo> monitors() override;

    MonitorInfo currentMonitor() const override { return m_monitor; }
    bool isInitialized() const override { return m_initialized; }

private:
    const GdiFunctions m_functions;
    GdiSurface m_surface;
    MonitorInfo m_monitor;
    bool m_initialized = false;
};

} // namespace corvane
