#pragma once

#include <xcb/xcb.h>

namespace corvane {

class X11Connection;

/// Asks the server to announce changes of its monitors, and recognises the announcements.
class MonitorWatch {
public:
    /// Asks the server to announce changes from now on, for as long as the connection lasts.
    explicit MonitorWatch(const X11Connection& connection);

    /// Whether a monitor may have come, gone, moved or changed its size.
    bool isMonitorChange(const xcb_generic_event_t& event) const;

private:
    int m_firstRandrEvent = 0; ///< 0: the server has no such events
};

} // namespace corvane
