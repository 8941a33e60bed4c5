#pragma once

#include <cstdint>

namespace corvane {

/// What keeps this machine's screen from being captured, as far as it is known beforehand.
enum class CaptureObstacle : uint8_t {
    None,
    Wayland, ///< a desktop that shows its screen to nobody who connects to the X server
};

/// This machine's; asks its display server. One implementation per platform.
CaptureObstacle captureObstacle();

} // namespace corvane
