#pragma once

#include "common/Backoff.h"
#include "media/CapturedFrame.h"
#include "media/IScreenCaptureBackend.h"

#include <QObject>
#include <QThread>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>

namespace corvane {

/// Runs a capture backend on a thread of its own: paces it, delivers its frames and recovers it
/// when it loses the screen. All operations belong to the owner's thread; they reach the capture
/// thread through atomics and locks.
class ScreenCaptureManager : public QObject {
    Q_OBJECT

public:
    using FrameCallback = std::function<void(const std::shared_ptr<CapturedFrame>&)>;

    /// How long things may take. The defaults are used in production; tests shorten them.
    struct Timings {
        std::chrono::milliseconds firstRecoveryDelay{100};
        std::chrono::milliseconds longestRecoveryDelay{5000};
        std::chrono::milliseconds joinLimit{5000};
    };

    /// Takes ownership of the backend. It may be null; `start` then reports an error.
    explicit ScreenCaptureManager(std::unique_ptr<IScreenCaptureBackend> backend,
                                  QObject* parent = nullptr);
    ScreenCaptureManager(std::unique_ptr<IScreenCaptureBackend> backend, Timings timings,
                         QObject* parent = nullptr);
    ~ScreenCaptureManager() override;

    /// Replaces the function that receives every frame on the capture thread. Waits for a call in
    /// progress; afterwards the old function is not called again.
    void setFrameCallback(FrameCallback callback);

    /// Starts the capture thread at `fps` frames per second, limited to 1..120. The backend must
    /// be initialised.
    void start(int fps);

    /// Stops the capture thread and returns when it has ended. A thread that hangs beyond the join
    /// limit is terminated.
    void stop();

    /// Changes the pace, also of the frame that is being waited for. Limited to 1..120 frames per
    /// second.
    void setPace(int fps);

    /// Makes the capture thread switch monitors before its next frame. The last call wins.
    void switchMonitor(int index);

    /// Marks the next frame that arrives, however late, as one to start the encoder afresh with.
    void requestKeyframe();

    /// Frames delivered since the last `start`; 0 while stopped. Any thread.
    uint64_t framesDelivered() const { return m_framesDelivered; }

Q_SIGNALS:
    /// Emitted on the capture thread.
    void frameCaptured(std::shared_ptr<corvane::CapturedFrame> frame);

    /// Emitted on the thread where the error occurred.
    void captureError(QString message);

private:
    void captureLoop();
    bool captureRound();
    bool captureAndDeliver();
    void deliver(std::unique_ptr<CapturedFrame> captured);
    void applyPendingMonitor();
    void recover();
    void reinitialize();
    void waitForChange();
    void waitForNextFrame();
    std::chrono::nanoseconds frameInterval() const;
    bool isRequestPending() const { return m_keyframePending || m_pendingMonitor >= 0; }
    bool waitUnlessStopped(std::chrono::nanoseconds duration);
    bool guarded(const std::function<bool()>& step);

    std::unique_ptr<IScreenCaptureBackend> m_backend;
    QThread m_thread;
    std::atomic<bool> m_running{false};
    std::atomic<bool> m_keyframePending{false};
    std::atomic<int32_t> m_targetFps{10};
    std::atomic<uint64_t> m_framesDelivered{0};
    std::atomic<int32_t> m_pendingMonitor{-1};
    FrameCallback m_callback;
    std::mutex m_callbackMutex;
    const Timings m_timings;
    Backoff m_recoveryBackoff;                         ///< capture thread only
    std::chrono::steady_clock::time_point m_lastFrame; ///< capture thread only: when it was begun
    std::mutex m_waitMutex;
    std::condition_variable m_changed; ///< stopped, or another pace
    std::condition_variable m_loopEnded;
    bool m_looping = false; ///< whether the capture loop still runs; guarded by `m_waitMutex`
};

} // namespace corvane
