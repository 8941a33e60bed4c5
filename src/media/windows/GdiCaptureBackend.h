#pragma once

#include "media/MonitorCaptureBackend.h"
#include "media/windows/GdiFunctions.h"
#include "media/windows/GdiSurface.h"

namespace corvane {

/// Captures one monitor with GDI, with the pointer drawn in: a whole frame on every call. Works
/// where desktop duplication does not, for example in remote-desktop sessions. It never reports a
/// lost screen: a failed copy costs a warning and that frame.
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
