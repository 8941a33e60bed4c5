#include "media/CaptureObstacle.h"

#include "x11/X11Connection.h"
#include "x11/Xwayland.h"

#include <cstdlib>

namespace corvane {

CaptureObstacle captureObstacle() {
    const auto connection = X11Connection::open();
    // A terminal of a Wayland desktop may well start programs on an X server that is a real one.
    const bool wayland =
        connection ? isXwayland(*connection) : std::getenv("WAYLAND_DISPLAY") != nullptr;
    return wayland ? CaptureObstacle::Wayland : CaptureObstacle::None;
}

} // namespace corvane
