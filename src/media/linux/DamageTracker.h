#pragma once

#include "common/MonitorInfo.h"
#include "media/CapturedFrame.h"

#include <xcb/damage.h>

#include <vector>

namespace corvane {

class X11Connection;

/// Learns from the server which parts of the screen have changed. If the server cannot tell,
/// everything always counts as changed. Must not outlive the connection.
class DamageTracker {
public:
    explicit DamageTracker(const X11Connection& connection);
    ~DamageTracker();
    DamageTracker(const DamageTracker&) = delete;
    DamageTracker& operator=(const DamageTracker&) = delete;

    /// Whether the server tells what changes.
    bool isReporting() const { return m_damage != XCB_NONE; }

    /// Whether a change was noted since they were last taken.
    bool hasChanged() const { return m_changed; }

    /// Notes the server's event if it is about changes.
    void noteEvent(const xcb_generic_event_t& event);

    /// What changed inside `monitor` since the last call, relative to its top-left corner; empty
    /// when nothing did.
    std::vector<FrameRect> takeChanges(const MonitorInfo& monitor);

private:
    const X11Connection& m_connection;
    int m_notifyType = 0;
    xcb_damage_damage_t m_damage = XCB_NONE;
    xcb_xfixes_region_t m_region = XCB_NONE;
    bool m_changed = false;
};

} // namespace corvane
