#pragma once

#include <QString>

namespace corvane {

/// Where the desktop looks for this program among what it starts at log-on.
QString autostartEntryPath();

} // namespace corvane
