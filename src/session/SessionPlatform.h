#pragma once

#include "input/IInputBackend.h"
#include "media/CaptureBackendCandidate.h"
#include "transport/IPeerTransport.h"

#include <functional>
#include <memory>
#include <vector>

namespace corvane {

/// Where a session gets its platform objects from. The defaults are the real ones; tests use a
/// synthetic screen and a recording input instead.
struct SessionPlatform {
    std::function<std::vector<CaptureBackendCandidate>()> captureCandidates =
        captureBackendCandidates;
    std::function<std::unique_ptr<IInputBackend>()> inputBackend = createInputBackend;
    std::function<std::unique_ptr<IPeerTransport>()> peerTransport = createPeerTransport;
};

} // namespace corvane
