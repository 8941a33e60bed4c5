#include "x11/Xwayland.h"

#include "x11/X11Connection.h"
#include "x11/X11Monitors.h"

#include <xcb/xcbext.h>

#include <algorithm>

namespace corvane {

bool isXwayland(const X11Connection& connection) {
    // Present since Xwayland 23.1, for this question; before, the monitors' names tell.
    static xcb_extension_t extension{.name = "XWAYLAND", .global_id = 0};
    return connection.hasExtension(extension) ||
           std::ranges::any_of(enumerateMonitors(connection), [](const MonitorInfo& monitor) {
               return monitor.name.starts_with("XWAYLAND");
           });
}

} // namespace corvane
