#include "app/CompanionService.h"

namespace corvane {

// The companion service exists on Windows only.
bool isCompanionServicePresent() {
    return false;
}

} // namespace corvane
