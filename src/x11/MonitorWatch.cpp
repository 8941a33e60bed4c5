#include "x11/MonitorWatch.h"

#include "x11/X11Connection.h"
#include "x11/XcbEvent.h"

#include <xcb/randr.h>

namespace corvane {

MonitorWatch::MonitorWatch(const X11Connection& connection) {
    // User-defined monitors are announced only by the root window, all others by RandR.
    const uint32_t rootEvents = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection.handle(), connection.root(), XCB_CW_EVENT_MASK,
                                 &rootEvents);
    if (connection.hasExtension(xcb_randr_id)) {
        m_firstRandrEvent = connection.firstEvent(xcb_randr_id);
        xcb_randr_select_input(connection.handle(), connection.root(),
                               XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                                   XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
    }
}

bool MonitorWatch::isMonitorChange(const xcb_generic_event_t& event) const {
    const int type = eventType(event);
    return type == XCB_CONFIGURE_NOTIFY ||
           (m_firstRandrEvent != 0 && (type == m_firstRandrEvent + XCB_RANDR_SCREEN_CHANGE_NOTIFY ||
                                       type == m_firstRandrEvent + XCB_RANDR_NOTIFY));
}

} // namespace corvane
