#pragma once

#include "media/MonitorCaptureBackend.h"
#include "media/linux/CursorImage.h"

#include <optional>

namespace corvane {

class DamageTracker;
class MonitorWatch;
class ScreenImage;
class X11Connection;

/// Captures one monitor of the X server that DISPLAY names, with the pointer drawn in. Reads only
/// what the server reports as changed, and follows changes of the monitor's position or size. A
/// lost monitor or server leaves the backend uninitialised; `initialize` connects anew.
class XcbCaptureBackend : public MonitorCaptureBackend {
public:
    XcbCaptureBackend();
    ~XcbCaptureBackend() override;

    bool initialize(int monitorIndex) override;
    void shutdown() override;
    std::unique_ptr<CapturedFrame> captureFrame() override;
    std::vector<MonitorInfo> monitors() override;
    ScreenWait waitForChange(std::chrono::milliseconds timeout) override;

private:
    /// The pointer when part of it is inside the frame, in the frame's coordinates.
    struct VisibleCursor {
        CursorImage image;
        FrameRect area;
    };

    bool drainEvents();
    bool followMonitor();
    std::optional<VisibleCursor> visibleCursor() const;
    bool cursorChanged(const std::optional<VisibleCursor>& cursor) const;
    bool refreshImage(const std::vector<FrameRect>& changes);
    std::unique_ptr<CapturedFrame> makeFrame(std::vector<FrameRect> changes) const;

    std::unique_ptr<X11Connection> m_connection;
    std::unique_ptr<MonitorWatch> m_watch;
    std::unique_ptr<DamageTracker> m_damage;
    std::unique_ptr<ScreenImage> m_image;
    std::optional<VisibleCursor> m_cursor; ///< as drawn into the last frame
    bool m_geometryChanged = false;
    bool m_wholeFrameDue = false;
};

} // namespace corvane
