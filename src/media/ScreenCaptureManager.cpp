#include "media/ScreenCaptureManager.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <exception>
#include <utility>

namespace corvane {

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kNoMonitor = -1;
constexpr int kLowestFps = 1;
constexpr int kMaxFps = 120;

/// Without a change of the screen, the backend is asked this often: not every server tells of a
/// pointer that moved.
constexpr std::chrono::milliseconds kMaxWait{100};

/// How soon a request is noticed while the screen stands still.
constexpr std::chrono::milliseconds kWaitSlice{50};

struct Termination : QThread {
    using QThread::setTerminationEnabled;
};

} // namespace

ScreenCaptureManager::ScreenCaptureManager(std::unique_ptr<IScreenCaptureBackend> backend,
                                           QObject* parent)
    : ScreenCaptureManager(std::move(backend), Timings{}, parent) {}

ScreenCaptureManager::ScreenCaptureManager(std::unique_ptr<IScreenCaptureBackend> backend,
                                           Timings timings, QObject* parent)
    : QObject(parent), m_backend(std::move(backend)), m_timings(timings),
      m_recoveryBackoff(timings.firstRecoveryDelay, timings.longestRecoveryDelay) {
    qRegisterMetaType<std::shared_ptr<CapturedFrame>>();
    m_thread.setObjectName(QStringLiteral("ScreenCapture"));
}

ScreenCaptureManager::~ScreenCaptureManager() {
    stop();
}

void ScreenCaptureManager::setFrameCallback(FrameCallback callback) {
    const std::lock_guard lock(m_callbackMutex);
    m_callback = std::move(callback);
}

void ScreenCaptureManager::start(int fps) {
    if (m_running) {
        spdlog::warn("ScreenCaptureManager: already running");
        return;
    }
    if (!m_backend) {
        spdlog::error("ScreenCaptureManager: no backend set");
        Q_EMIT captureError(QStringLiteral("No capture backend available"));
        return;
    }
    if (!m_backend->isInitialized()) {
        spdlog::error("ScreenCaptureManager: backend not initialized");
        Q_EMIT captureError(QStringLiteral("Capture backend is not initialized"));
        return;
    }
    m_targetFps = std::clamp(fps, kLowestFps, kMaxFps);
    m_running = true;
    m_looping = true;
    m_lastFrame = {};
    m_framesDelivered = 0;
    connect(&m_thread, &QThread::started, this, &ScreenCaptureManager::captureLoop,
            Qt::DirectConnection);
    m_thread.start(QThread::InheritPriority);
    spdlog::info("ScreenCaptureManager: started (target {} FPS)", m_targetFps.load());
}

void ScreenCaptureManager::stop() {
    if (!m_running) {
        return;
    }
    {
        std::unique_lock lock(m_waitMutex);
        m_running = false;
        m_changed.notify_all();
        if (!m_loopEnded.wait_for(lock, m_timings.joinLimit,
                                  [this] { return !m_looping || !m_thread.isRunning(); })) {
            spdlog::warn(
                "ScreenCaptureManager: worker thread did not finish within 5 s -- terminating");
            m_thread.terminate();
        }
    }
    m_thread.quit();
    m_thread.wait();
    disconnect(&m_thread, &QThread::started, this, nullptr);
    m_framesDelivered = 0;
    spdlog::info("ScreenCaptureManager: stopped");
}

void ScreenCaptureManager::setPace(int fps) {
    {
        const std::lock_guard lock(m_waitMutex);
        m_targetFps = std::clamp(fps, kLowestFps, kMaxFps);
    }
    m_changed.notify_all();
}

void ScreenCaptureManager::switchMonitor(int index) {
    m_pendingMonitor.exchange(index);
    spdlog::info("ScreenCaptureManager: monitor switch to {} queued", index);
}

void ScreenCaptureManager::requestKeyframe() {
    m_keyframePending.exchange(true);
}

void ScreenCaptureManager::captureLoop() {
    spdlog::debug("ScreenCaptureManager: capture loop entered");
    // Termination is off while `started` is being emitted, and this slot lasts as long as the
    // thread.
    Termination::setTerminationEnabled(true);
    m_recoveryBackoff.reset();
    while (m_running) {
        if (!captureRound()) {
            recover();
        }
    }
    spdlog::debug("ScreenCaptureManager: capture loop exiting");
    const std::lock_guard lock(m_waitMutex);
    m_looping = false;
    m_loopEnded.notify_all();
}

/// False when the backend has lost its screen.
bool ScreenCaptureManager::captureRound() {
    applyPendingMonitor();
    const auto begin = Clock::now();
    const bool delivered = guarded([this] { return captureAndDeliver(); });
    if (!delivered && !m_backend->isInitialized()) {
        return false;
    }
    if (delivered) {
        m_lastFrame = begin;
    } else {
        waitForChange();
    }
    waitForNextFrame();
    return true;
}

/// Returns early when something is requested meanwhile.
void ScreenCaptureManager::waitForChange() {
    const auto until = Clock::now() + kMaxWait;
    const bool unmet = isRequestPending();
    while (m_running && isRequestPending() == unmet && Clock::now() < until) {
        switch (m_backend->waitForChange(kWaitSlice)) {
        case ScreenWait::Unsupported:
            waitUnlessStopped(frameInterval());
            return;
        case ScreenWait::Nothing:
            break;
        case ScreenWait::MayHaveChanged:
            return;
        }
    }
}

/// Keeps the pace between frames, however it changes meanwhile.
void ScreenCaptureManager::waitForNextFrame() {
    std::unique_lock lock(m_waitMutex);
    while (m_running && Clock::now() < m_lastFrame + frameInterval()) {
        m_changed.wait_until(lock, m_lastFrame + frameInterval());
    }
}

std::chrono::nanoseconds ScreenCaptureManager::frameInterval() const {
    return std::chrono::nanoseconds(static_cast<int64_t>(1.0 / m_targetFps * 1e9));
}

bool ScreenCaptureManager::captureAndDeliver() {
    auto captured = m_backend->captureFrame();
    if (!captured) {
        return false;
    }
    m_recoveryBackoff.reset();
    deliver(std::move(captured));
    return true;
}

void ScreenCaptureManager::deliver(std::unique_ptr<CapturedFrame> captured) {
    if (m_keyframePending.exchange(false)) {
        captured->keyframeRequested = true;
        captured->dirtyRects.clear();
    }
    const std::shared_ptr<CapturedFrame> frame = std::move(captured);
    ++m_framesDelivered;
    {
        const std::lock_guard lock(m_callbackMutex);
        if (m_callback) {
            m_callback(frame);
        }
    }
    Q_EMIT frameCaptured(frame);
}

void ScreenCaptureManager::applyPendingMonitor() {
    const int index = m_pendingMonitor.exchange(kNoMonitor);
    if (index < 0) {
        return;
    }
    spdlog::info("ScreenCaptureManager: switching to monitor {} (in capture thread)", index);
    const bool switched = guarded([this, index] {
        m_backend->shutdown();
        return m_backend->initialize(index);
    });
    if (switched) {
        spdlog::info("ScreenCaptureManager: switched to monitor {}", index);
    } else {
        spdlog::error("ScreenCaptureManager: failed to switch to monitor {}", index);
    }
}

void ScreenCaptureManager::recover() {
    const auto delay = m_recoveryBackoff.next();
    spdlog::warn("ScreenCaptureManager: backend lost, reinitializing in {} ms", delay.count());
    if (waitUnlessStopped(delay)) {
        reinitialize();
    }
}

void ScreenCaptureManager::reinitialize() {
    int index = 0;
    const bool recovered = guarded([this, &index] {
        m_backend->monitors();
        index = static_cast<int>(m_backend->currentMonitor().index);
        return m_backend->initialize(index);
    });
    if (!recovered) {
        spdlog::error("ScreenCaptureManager: reinit failed for monitor {}", index);
        Q_EMIT captureError(QStringLiteral("Failed to reinitialize capture backend"));
    }
}

/// False when cut short by `stop`.
bool ScreenCaptureManager::waitUnlessStopped(std::chrono::nanoseconds duration) {
    std::unique_lock lock(m_waitMutex);
    return !m_changed.wait_for(lock, duration, [this] { return !m_running; });
}

/// The result of `step`; false, with a log line and a report, when it throws.
bool ScreenCaptureManager::guarded(const std::function<bool()>& step) {
    try {
        return step();
    } catch (const std::exception& exception) {
        spdlog::error("ScreenCaptureManager: exception during capture: {}", exception.what());
        Q_EMIT captureError(QString::fromUtf8(exception.what()));
        return false;
    }
}

} // namespace corvane
