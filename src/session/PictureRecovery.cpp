#include "session/PictureRecovery.h"

#include <spdlog/spdlog.h>

namespace corvane {

namespace {

using Clock = std::chrono::steady_clock;

} // namespace

PictureRecovery::PictureRecovery(Timings timings, QObject* parent)
    : QObject(parent), m_timings(timings), m_losses(timings.reorderWindow) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &PictureRecovery::look);
}

void PictureRecovery::start() {
    m_running = true;
    m_whole = false;
    m_notBefore = {};
    schedule(m_timings.firstPicture);
}

void PictureRecovery::stop() {
    m_running = false;
    m_timer.stop();
}

bool PictureRecovery::onMessage(uint64_t counter) {
    const bool awaited = m_losses.note(counter, Clock::now());
    if (m_losses.isAnythingMissing()) {
        schedule(m_timings.reorderWindow);
    }
    return awaited;
}

void PictureRecovery::onKeyframe(uint64_t counter) {
    m_losses.forgetBefore(counter);
    m_keyframe = counter;
    m_whole = true;
}

void PictureRecovery::onDecodeFailure(uint64_t counter) {
    if (counter >= m_keyframe) {
        miss();
        look();
    }
}

void PictureRecovery::miss() {
    if (m_whole) {
        spdlog::debug("Video packet lost, asking for a key frame");
    }
    m_whole = false;
}

/// Requests a key frame if one is needed, and checks again as long as anything is missing.
void PictureRecovery::look() {
    const auto now = Clock::now();
    if (m_losses.takeLoss(now)) {
        miss();
    }
    if (!m_running) {
        return;
    }
    if (!m_whole) {
        if (now >= m_notBefore) {
            m_notBefore = now + m_timings.interval;
            Q_EMIT keyframeNeeded();
        }
        schedule(std::chrono::ceil<std::chrono::milliseconds>(m_notBefore - now));
    } else if (m_losses.isAnythingMissing()) {
        schedule(m_timings.reorderWindow);
    }
}

/// A check that is due earlier stays scheduled.
void PictureRecovery::schedule(std::chrono::milliseconds delay) {
    if (m_running && (!m_timer.isActive() || m_timer.remainingTimeAsDuration() > delay)) {
        m_timer.start(delay);
    }
}

} // namespace corvane
