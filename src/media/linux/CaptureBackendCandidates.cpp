#include "media/CaptureBackendCandidate.h"

#include "media/linux/XcbCaptureBackend.h"

namespace corvane {

std::vector<CaptureBackendCandidate> captureBackendCandidates() {
    return {{.create = [] { return std::make_unique<XcbCaptureBackend>(); },
             .readyText = "Using X11 screen capture backend (monitor {})",
             .unavailableText = {}}};
}

} // namespace corvane
