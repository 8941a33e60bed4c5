#include "app/settings/PrivateSettings.h"

namespace corvane {

// The user's part of the registry is closed to other users.
void keepPrivate(const QSettings&) {}

} // namespace corvane
