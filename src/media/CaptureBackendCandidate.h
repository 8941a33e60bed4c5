#pragma once

#include "media/IScreenCaptureBackend.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace corvane {

/// One entry of the platform's ordered list of ways to capture.
struct CaptureBackendCandidate {
    std::function<std::unique_ptr<IScreenCaptureBackend>()> create;
    std::string readyText;       ///< info line once it is initialised; "{}" takes the monitor index
    std::string unavailableText; ///< warning line if it fails to initialise; empty: none
};

/// The platform's candidates, best first. The first one that initialises is used.
std::vector<CaptureBackendCandidate> captureBackendCandidates();

/// The monitors that can be captured by the first candidate that finds any.
std::vector<MonitorInfo> capturableMonitors(const std::vector<CaptureBackendCandidate>& candidates);

} // namespace corvane
