#pragma once

#include "common/MonitorInfo.h"

#include <optional>
#include <vector>

namespace corvane {

class X11Connection;

/// The monitors in the server's order, or the whole screen as the only one if the server cannot
/// tell. Empty when the connection is dead.
std::vector<MonitorInfo> enumerateMonitors(const X11Connection& connection);

/// The primary monitor, or the first one if none is primary. No value when the connection is dead.
std::optional<MonitorInfo> primaryMonitor(const X11Connection& connection);

} // namespace corvane
