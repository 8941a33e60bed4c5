#pragma once

#include "media/MonitorCaptureBackend.h"
#include "media/windows/GdiFunctions.h"
#include "media/windows/GdiSurface.h"

namespace corvane {

/// Captures one monitor with GDI, pointer drawn in: a whole frame with every call. Works where
/// desktop duplication does not, remote-desktop sessions among them. It never reports a lost
/// screen: a copy that fails costs a warning and the round.
class GdiCaptureBackend : public MonitorCaptureBackend {
public:
    explicit GdiCaptureBackend(GdiFunctions functions = {});
    ~GdiCaptureBackend() override;

    bool initialize(int monitorIndex) override;
    void shutdown() override;
    std::unique_ptr<CapturedFrame> captureFrame() override;

    /// In the system's order, unsorted.
    std::vector<MonitorInfo> monitors() override;

private:
    const GdiFunctions m_functions;
    GdiSurface m_surface;
};

} // namespace corvane
