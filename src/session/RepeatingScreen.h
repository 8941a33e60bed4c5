#pragma once

#include "media/IScreenCaptureBackend.h"

#include <chrono>

namespace corvane {

class PacketQueue;
class PictureRequests;

/// A screen as the stream sees it.
///
/// It takes no picture while none could be sent, so the next one is new. While nothing changes, it
/// shows the last picture again: on request, so that a viewer who missed a packet gets a whole
/// picture of a still screen, and a few times by itself, to be encoded finer and finer; a viewer
/// also notices a lost packet only when a later one arrives.
class RepeatingScreen : public IScreenCaptureBackend {
public:
    /// `requests` and `packets` are borrowed and must outlive the screen.
    RepeatingScreen(std::unique_ptr<IScreenCaptureBackend> screen, PictureRequests& requests,
                    PacketQueue& packets);

    bool initialize(int monitorIndex) override { return m_screen->initialize(monitorIndex); }
    void shutdown() override { m_screen->shutdown(); }
    std::unique_ptr<CapturedFrame> captureFrame() override;
    std::vector<MonitorInfo> monitors() override { return m_screen->monitors(); }
    MonitorInfo currentMonitor() const override { return m_screen->currentMonitor(); }
    bool isInitialized() const override { return m_screen->isInitialized(); }
    ScreenWait waitForChange(std::chrono::milliseconds timeout) override;

private:
    using Clock = std::chrono::steady_clock;

    std::unique_ptr<CapturedFrame> repeatedPicture();
    std::chrono::milliseconds timeToRepeat() const;

    const std::unique_ptr<IScreenCaptureBackend> m_screen;
    PictureRequests& m_requests;
    PacketQueue& m_packets;
    Clock::time_point m_changed; ///< when the screen last changed or was shown on request
    size_t m_repeats = 0;        ///< unrequested ones since then
};

} // namespace corvane
