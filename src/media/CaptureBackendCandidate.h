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
    std::string readyText;       ///< info line once it initialised; "{}" takes the monitor index
    std::string unavailableText; ///< warning line when it did not; empty: none
};

/// The platform's candidates, best first. The first that initialises wins.
std::vector<CaptureBackendCandidate> captureBackendCandidates();

/// The monitors that the first candidate which finds any can capture.
std::vector<MonitorInfo> capturableMonitors(const std::vector<CaptureBackendCandidate>& candidates);

} // namespace corvane
