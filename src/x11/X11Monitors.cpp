#include "x11/X11Monitors.h"

#include "x11/X11Connection.h"
#include "x11/XcbReply.h"

#include <xcb/randr.h>

#include <algorithm>
#include <string>

namespace corvane {

namespace {

constexpr uint32_t kRandrMajor = 1;
constexpr uint32_t kRandrMinor = 5;

bool hasMonitorList(const X11Connection& connection) {
    if (!connection.hasExtension(xcb_randr_id)) {
        return false;
    }
    const XcbReply<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        connection.handle(), xcb_randr_query_version(connection.handle(), kRandrMajor, kRandrMinor),
        nullptr));
    return version &&
           (version->major_version > kRandrMajor ||
            (version->major_version == kRandrMajor && version->minor_version >= kRandrMinor));
}

std::string atomName(xcb_connection_t* connection, xcb_atom_t atom) {
    const XcbReply<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(connection, xcb_get_atom_name(connection, atom), nullptr));
    if (!reply) {
        return {};
    }
    return {xcb_get_atom_name_name(reply.get()),
            static_cast<size_t>(xcb_get_atom_name_name_length(reply.get()))};
}

std::vector<MonitorInfo> listedMonitors(const X11Connection& connection) {
    constexpr uint8_t kActiveOnly = 1;
    const XcbReply<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
        connection.handle(),
        xcb_randr_get_monitors(connection.handle(), connection.root(), kActiveOnly), nullptr));
    std::vector<MonitorInfo> monitors;
    if (!reply) {
        return monitors;
    }
    auto entries = xcb_randr_get_monitors_monitors_iterator(reply.get());
    for (; entries.rem > 0; xcb_randr_monitor_info_next(&entries)) {
        const xcb_randr_monitor_info_t& entry = *entries.data;
        monitors.push_back({.index = static_cast<uint32_t>(monitors.size()),
                            .name = atomName(connection.handle(), entry.name),
                            .x = entry.x,
                            .y = entry.y,
                            .width = entry.width,
                            .height = entry.height,
                            .primary = entry.primary != 0});
    }
    return monitors;
}

std::vector<MonitorInfo> wholeScreen(const X11Connection& connection) {
    const XcbReply<xcb_get_geometry_reply_t> root(xcb_get_geometry_reply(
        connection.handle(), xcb_get_geometry(connection.handle(), connection.root()), nullptr));
    if (!root) {
        return {};
    }
    return {{.index = 0,
             .name = "screen",
             .x = 0,
             .y = 0,
             .width = root->width,
             .height = root->height,
             .primary = true}};
}

} // namespace

std::vector<MonitorInfo> enumerateMonitors(const X11Connection& connection) {
    if (hasMonitorList(connection)) {
        auto monitors = listedMonitors(connection);
        if (!monitors.empty()) {
            return monitors;
        }
    }
    return wholeScreen(connection);
}

std::optional<MonitorInfo> primaryMonitor(const X11Connection& connection) {
    const auto monitors = enumerateMonitors(connection);
    if (monitors.empty()) {
        return std::nullopt;
    }
    const auto primary = std::ranges::find_if(monitors, &MonitorInfo::primary);
    return primary != monitors.end() ? *primary : monitors.front();
}

} // namespace corvane
