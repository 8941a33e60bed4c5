#pragma once

#include "common/DisplayMode.h"

#include <string>

namespace corvane {

/// What a session streams with. Copied when streaming starts; later changes, except to clipboard
/// sharing, apply from the next session on.
struct StreamingSettings {
    int captureFrameRate = kSpeedPreset.framesPerSecond;            ///< frames per second, 1..60
    int frameRateWithInput = kSpeedPreset.framesPerSecondWithInput; ///< while the viewer's comes
    int encoderQuality = kSpeedPreset.encoderQuality;               ///< 0 (best) to 51
    std::string encoderSpeed = kEncoderSpeed;                       ///< a number or a preset name
    int monitorIndex = 0;
    bool clipboardSharing = true;
};

} // namespace corvane
