#include "media/CaptureBackendCandidate.h"

#include "media/windows/DxgiCaptureBackend.h"
#include "media/windows/GdiCaptureBackend.h"

namespace corvane {

std::vector<CaptureBackendCandidate> captureBackendCandidates() {
    return {
        {.create = [] { return std::make_unique<DxgiCaptureBackend>(); },
         .readyText = "Using DXGI screen capture backend (monitor {})",
         .unavailableText = "DXGI capture unavailable, falling back to GDI"},
        {.create = [] { return std::make_unique<GdiCaptureBackend>(); },
         .readyText = "Using GDI screen capture backend (RDP-compatible)",
         .unavailableText = {}},
    };
}

} // namespace corvane
