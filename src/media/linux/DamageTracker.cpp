#include "media/linux/DamageTracker.h"

#include "media/linux/FrameRectClip.h"
#include "x11/X11Connection.h"
#include "x11/XcbEvent.h"

namespace corvane {

namespace {

/// Both extensions require the client's version before any other request.
bool negotiateVersions(xcb_connection_t* connection) {
    const auto fixesCookie =
        xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION);
    const auto damageCookie =
        xcb_damage_query_version(connection, XCB_DAMAGE_MAJOR_VERSION, XCB_DAMAGE_MINOR_VERSION);
    const XcbReply<xcb_xfixes_query_version_reply_t> fixes(
        xcb_xfixes_query_version_reply(connection, fixesCookie, nullptr));
    const XcbReply<xcb_damage_query_version_reply_t> damage(
        xcb_damage_query_version_reply(connection, damageCookie, nullptr));
    return fixes && damage && fixes->major_version >= 2;
}

} // namespace

DamageTracker::DamageTracker(const X11Connection& connection) : m_connection(connection) {
    if (!connection.hasExtension(xcb_damage_id) || !connection.hasExtension(xcb_xfixes_id) ||
        !negotiateVersions(connection.handle())) {
        return;
    }
    m_notifyType = connection.firstEvent(xcb_damage_id) + XCB_DAMAGE_NOTIFY;
    m_region = xcb_generate_id(connection.handle());
    m_damage = xcb_generate_id(connection.handle());
    xcb_xfixes_create_region(connection.handle(), m_region, 0, nullptr);
    xcb_damage_create(connection.handle(), m_damage, connection.root(),
                      XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
}

DamageTracker::~DamageTracker() {
    if (m_damage != XCB_NONE) {
        xcb_damage_destroy(m_connection.handle(), m_damage);
        xcb_xfixes_destroy_region(m_connection.handle(), m_region);
    }
}

void DamageTracker::noteEvent(const xcb_generic_event_t& event) {
    if (m_damage != XCB_NONE && eventType(event) == m_notifyType) {
        m_changed = true;
    }
}

std::vector<FrameRect> DamageTracker::takeChanges(const MonitorInfo& monitor) {
    const FrameRect everything{0, 0, monitor.width, monitor.height};
    if (m_damage == XCB_NONE) {
        return {everything};
    }
    if (!m_changed) {
        return {};
    }
    m_changed = false;
    xcb_damage_subtract(m_connection.handle(), m_damage, XCB_NONE, m_region);
    const XcbReply<xcb_xfixes_fetch_region_reply_t> reply(xcb_xfixes_fetch_region_reply(
        m_connection.handle(), xcb_xfixes_fetch_region(m_connection.handle(), m_region), nullptr));
    if (!reply) {
        return {everything};
    }
    std::vector<FrameRect> changes;
    const auto* const rectangles = xcb_xfixes_fetch_region_rectangles(reply.get());
    const int count = xcb_xfixes_fetch_region_rectangles_length(reply.get());
    for (int i = 0; i < count; ++i) {
        const xcb_rectangle_t& rectangle = rectangles[i];
        const int32_t left = rectangle.x - monitor.x;
        const int32_t top = rectangle.y - monitor.y;
        const FrameRect change =
            clipped({left, top, left + rectangle.width, top + rectangle.height}, monitor.width,
                    monitor.height);
        if (!isEmpty(change)) {
            changes.push_back(change);
        }
    }
    return changes;
}

} // namespace corvane
