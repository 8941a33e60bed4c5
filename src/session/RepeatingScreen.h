#pragma once

#include "media/IScreenCaptureBackend.h"

#include <array>
#include <atomic>
#include <chrono>
#include <functional>

namespace corvane {

/// A screen that shows its last picture again while nothing changes on it: when asked to, so that a
/// viewer who missed a packet gets a whole picture from a screen that stands still, and a few times
/// by itself, since a viewer finds out about a lost packet only from one that follows it.
class RepeatingScreen : public IScreenCaptureBackend {
public:
    /// The picture to repeat, or null; asked on the capture thread.
    using LastFrame = std::function<std::shared_ptr<const CapturedFrame>()>;

    RepeatingScreen(std::unique_ptr<IScreenCaptureBackend> screen, LastFrame lastFrame);

    /// Shows the last picture again, soon. Any thread.
    void requestRepeat() { m_repeatRequested = true; }

    bool initialize(int monitorIndex) override { return m_screen->initialize(monitorIndex); }
    void shutdown() override { m_screen->shutdown(); }
    std::unique_ptr<CapturedFrame> captureFrame() override;
    std::vector<MonitorInfo> monitors() override { return m_screen->monitors(); }
    MonitorInfo currentMonitor() const override { return m_screen->currentMonitor(); }
    bool isInitialized() const override { return m_screen->isInitialized(); }

private:
    using Clock = std::chrono::steady_clock;

    bool isRepeatDue();

    const std::unique_ptr<IScreenCaptureBackend> m_screen;
    const LastFrame m_lastFrame;
    std::atomic<bool> m_repeatRequested{false};
    Clock::time_point m_changed; ///< when the screen last did
    size_t m_repeats = 0;        ///< by itself, since then
};

} // namespace corvane
