#include "media/CaptureBackendCandidate.h"

namespace corvane {

std::vector<MonitorInfo>
capturableMonitors(const std::vector<CaptureBackendCandidate>& candidates) {
    for (const CaptureBackendCandidate& candidate : candidates) {
        auto monitors = candidate.create()->monitors();
        if (!monitors.empty()) {
            return monitors;
        }
    }
    return {};
}

} // namespace corvane
