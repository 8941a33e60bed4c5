#include "media/CaptureObstacle.h"

namespace corvane {

CaptureObstacle captureObstacle() {
    return CaptureObstacle::None;
}

} // namespace corvane
