#pragma once

#include "common/MonitorInfo.h"
#include "media/CaptureObstacle.h"

#include <QSystemTrayIcon>

#include <functional>
#include <vector>

namespace corvane {

class ISystemIntegration;

/// What the main window needs from the platform.
struct MainWindowPlatform {
    /// Borrowed; must outlive the window.
    ISystemIntegration* integration = nullptr;

    /// The monitors that this machine can share, in the platform's order.
    std::function<std::vector<MonitorInfo>()> monitors;

    /// What the user is told, from the start, about sharing this machine.
    CaptureObstacle captureObstacle = CaptureObstacle::None;

    /// Whether the desktop currently has room for a tray icon.
    std::function<bool()> isTrayThere = &QSystemTrayIcon::isSystemTrayAvailable;
};

} // namespace corvane
