#pragma once

#include "common/MonitorInfo.h"
#include "media/CapturedFrame.h"

#include <chrono>
#include <memory>
#include <vector>

namespace corvane {

/// What waiting for a change of the screen came to.
enum class ScreenWait {
    Unsupported, ///< the backend cannot tell; returned at once
    Nothing,
    MayHaveChanged,
};

/// One way of capturing the screen. Initialised by its creator on the main thread, then used only
/// by the capture thread until that thread has ended. Failures are logged and reported by the
/// result.
class IScreenCaptureBackend {
public:
    virtual ~IScreenCaptureBackend() = default;

    /// Starts capturing the monitor at `monitorIndex` of `monitors()`, releasing what an earlier
    /// call acquired.
    virtual bool initialize(int monitorIndex) = 0;

    virtual void shutdown() = 0;

    /// The current image, or null when nothing changed since the last call or capture failed.
    virtual std::unique_ptr<CapturedFrame> captureFrame() = 0;

    virtual std::vector<MonitorInfo> monitors() = 0;
    virtual MonitorInfo currentMonitor() const = 0;

    /// False before `initialize` and once the screen has been lost.
    virtual bool isInitialized() const = 0;

    /// Waits until the screen may have changed since the last `captureFrame`.
    virtual ScreenWait waitForChange(std::chrono::milliseconds) { return ScreenWait::Unsupported; }
};

} // namespace corvane
