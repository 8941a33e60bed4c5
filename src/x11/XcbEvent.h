#pragma once

#include "x11/XcbReply.h"

namespace corvane {

using XcbEvent = XcbReply<xcb_generic_event_t>;

/// The type of an event, no matter whether the server or another program sent it; 0 is an error.
inline int eventType(const xcb_generic_event_t& event) {
    constexpr uint8_t kSentByAClient = 0x80;
    return event.response_type & ~kSentByAClient;
}

} // namespace corvane
