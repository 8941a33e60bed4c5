#pragma once

#include <string>

namespace corvane {

/// What a session streams with. Taken over when streaming starts; later changes, other than to
/// clipboard sharing, count from the next session on.
struct StreamingSettings {
    int captureFrameRate = 10;      ///< frames per second, 1..60
    int encoderQuality = 45;        ///< 0 (best) to 51
    std::string encoderSpeed = "8"; ///< the encoder's speed setting, a number or a preset name
    int monitorIndex = 0;
    bool clipboardSharing = true;
};

} // namespace corvane
