#include "session/LagGuard.h"

#include "session/StreamLevel.h"

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/// What may wait in this machine: less than a small frame, since each later one waits behind it.
constexpr int64_t kMaxQueued = 4 * 1024;

/// How much longer than on an empty line messages may take before the line counts as full.
constexpr auto kMaxQueueing = 150ms;

/// How long a measured shortest round trip is believed; the route may change.
constexpr auto kShortestValidFor = 30s;

constexpr auto kPeriod = 1000ms;
constexpr double kStrained = 0.5; ///< share of a period without permission that costs a level
constexpr double kCalm = 0.15;
constexpr int kMaxCalm = 48;

/// After this long, whatever was sent has arrived or is lost.
constexpr auto kIdleAfter = 1s;

} // namespace

void LagGuard::onSent(Time now) {
    if (isIdle(now)) {
        m_periodBegin = now;
        m_lastUpdate = now;
        m_blockedTime = {};
    }
    m_lastSent = now;
}

bool LagGuard::update(Time now, const LinkLoad& load) {
    if (m_blocked) {
        m_blockedTime += now - m_lastUpdate;
    }
    m_lastUpdate = now;
    m_blocked = isBlocked(now, load);
    judge(now);
    return !m_blocked;
}

bool LagGuard::isIdle(Time now) const {
    return !m_blocked && m_level == 0 && now - m_lastSent > kIdleAfter;
}

bool LagGuard::isBlocked(Time now, const LinkLoad& load) {
    if (load.roundTripMilliseconds) {
        noteRoundTrip(now, *load.roundTripMilliseconds);
    }
    if (load.videoQueued > kMaxQueued) {
        return true;
    }
    // The measured time lags behind. Once it has passed since the last packet, the line is empty.
    return m_shortest && m_roundTrip - *m_shortest > kMaxQueueing && now - m_lastSent < m_roundTrip;
}

void LagGuard::noteRoundTrip(Time now, double milliseconds) {
    m_roundTrip = Milliseconds(milliseconds);
    if (now - m_shortestSince > kShortestValidFor) {
        m_shortest = m_recentShortest;
        m_recentShortest.reset();
        m_shortestSince = now;
    }
    m_recentShortest = std::min(m_recentShortest.value_or(m_roundTrip), m_roundTrip);
    m_shortest = std::min(m_shortest.value_or(m_roundTrip), m_roundTrip);
}

void LagGuard::judge(Time now) {
    const Milliseconds period = now - m_periodBegin;
    if (period < kPeriod) {
        return;
    }
    const double strain = m_blockedTime / period;
    m_periodBegin = now;
    m_blockedTime = {};
    m_calmPeriods = strain > kCalm ? 0 : m_calmPeriods + 1;
    if (strain > kStrained) {
        giveUpMore();
    } else if (m_calmPeriods >= m_calmNeeded) {
        takeBack();
    }
}

/// What was taken back too early is tried again only after twice the time: every change of size
/// costs a key frame.
void LagGuard::giveUpMore() {
    if (std::exchange(m_tookBack, false)) {
        m_calmNeeded = std::min(2 * m_calmNeeded, kMaxCalm);
    }
    m_level = std::min(m_level + 1, kMaxStreamLevel);
}

void LagGuard::takeBack() {
    m_calmPeriods = 0;
    if (m_level == 0) {
        m_calmNeeded = kMinCalm;
        return;
    }
    m_tookBack = true;
    --m_level;
}

} // namespace corvane
