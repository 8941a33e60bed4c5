#pragma once

#include "common/MonitorInfo.h"

#include <QSystemTrayIcon>

#include <functional>
#include <vector>

namespace corvane {

class ISystemIntegration;

/// What the main window needs of the machine under it.
struct MainWindowPlatform {
    /// Borrowed; must outlive the window.
    ISystemIntegration* integration = nullptr;

    /// The monitors that this machine can share, in their order.
    std::function<std::vector<MonitorInfo>()> monitors;

    /// Whether the desktop has a place for a tray icon at this moment.
    std::function<bool()> isTrayThere = &QSystemTrayIcon::isSystemTrayAvailable;
};

} // namespace corvane
