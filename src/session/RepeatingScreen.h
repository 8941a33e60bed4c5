#pragma once

#include "media/IScreenCaptureBackend.h"

#include <chrono>

namespace corvane {

class PictureRequests;

/// A screen that shows its last picture again while nothing changes on it: on request, so that a
/// viewer who missed a packet gets a whole picture of a still screen, and a few times by itself,
/// since a viewer notices a lost packet only when a later one arrives.
class RepeatingScreen : public IScreenCaptureBackend {
public:
    /// `requests` is borrowed and must outlive the screen.
    RepeatingScreen(std::unique_ptr<IScreenCaptureBackend> screen, PictureRequests& requests);

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
    PictureRequests& m_requests;
    Clock::time_point m_changed; ///< when the screen last changed
    size_t m_repeats = 0;        ///< unrequested ones since then
};

} // namespace corvane
