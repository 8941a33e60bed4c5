#include "services/ConnectionQualityMonitor.h"

#include "common/ValueFormats.h"

#include <spdlog/spdlog.h>

#include <chrono>
#include <utility>

namespace corvane {

namespace {

constexpr std::chrono::milliseconds kUpdateInterval{1000};

QualityLevel classify(const ConnectionStats& stats) {
    if (stats.fps >= 8 && stats.latencyMs < 100) {
        return QualityLevel::Good;
    }
    if (stats.fps >= 4 && stats.latencyMs < 300) {
        return QualityLevel::Fair;
    }
    return QualityLevel::Poor;
}

QString bandwidthText(double kbps) {
    return kbps >= 1000 ? ConnectionQualityMonitor::tr("%1 Mbps").arg(kbps / 1000, 0, 'f', 1)
                        : ConnectionQualityMonitor::tr("%1 kbps").arg(kbps, 0, 'f', 0);
}

} // namespace

ConnectionQualityMonitor::ConnectionQualityMonitor(QObject* parent) : QObject(parent) {
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(kUpdateInterval);
    connect(&m_timer, &QTimer::timeout, this, &ConnectionQualityMonitor::onUpdateTick);
}

void ConnectionQualityMonitor::start() {
    spdlog::info("Connection quality monitor started");
    clear();
    m_uptime.start();
    m_timer.start();
}

void ConnectionQualityMonitor::stop() {
    m_timer.stop();
    clear();
    spdlog::info("Connection quality monitor stopped");
}

ConnectionStats ConnectionQualityMonitor::stats() const {
    const std::lock_guard lock(m_mutex);
    return m_stats;
}

QualityLevel ConnectionQualityMonitor::qualityLevel() const {
    const std::lock_guard lock(m_mutex);
    return m_level;
}

QString ConnectionQualityMonitor::summaryText(const ConnectionStats& stats) {
    return tr("FPS: %1 | Latency: %2ms | BW: %3 | Uptime: %4")
        .arg(QString::number(qRound64(stats.fps)), QString::number(qRound64(stats.latencyMs)),
             bandwidthText(stats.bandwidthKbps), formatDuration(stats.uptimeSeconds));
}

void ConnectionQualityMonitor::countFrame() {
    const std::lock_guard lock(m_mutex);
    ++m_counters.tick.frames;
}

void ConnectionQualityMonitor::countDroppedFrame() {
    const std::lock_guard lock(m_mutex);
    ++m_counters.framesDropped;
}

void ConnectionQualityMonitor::addBytesSent(qint64 bytes) {
    const std::lock_guard lock(m_mutex);
    m_counters.tick.bytes += bytes;
    m_counters.bytesSent += bytes;
}

void ConnectionQualityMonitor::addBytesReceived(qint64 bytes) {
    const std::lock_guard lock(m_mutex);
    m_counters.tick.bytes += bytes;
    m_counters.bytesReceived += bytes;
}

void ConnectionQualityMonitor::setLatency(double milliseconds) {
    const std::lock_guard lock(m_mutex);
    m_counters.latencyMs = milliseconds;
}

void ConnectionQualityMonitor::onUpdateTick() {
    ConnectionStats tick;
    tick.uptimeSeconds =
        m_uptime.isValid() ? static_cast<uint64_t>(m_uptime.elapsed()) / 1000 : uint64_t{0};
    bool levelChanged = false;
    {
        const std::lock_guard lock(m_mutex);
        const auto passed = std::exchange(m_counters.tick, {});
        tick.fps = static_cast<double>(passed.frames);
        tick.latencyMs = m_counters.latencyMs;
        tick.bandwidthKbps = static_cast<double>(passed.bytes) * 8 / 1000;
        tick.bytesSent = m_counters.bytesSent;
        tick.bytesReceived = m_counters.bytesReceived;
        tick.framesDropped = m_counters.framesDropped;
        m_stats = tick;
        const QualityLevel level = classify(tick);
        levelChanged = std::exchange(m_level, level) != level;
    }
    spdlog::trace("Connection stats: FPS={:.0f}, latency={:.1f}ms, bw={:.1f}kbps", tick.fps,
                  tick.latencyMs, tick.bandwidthKbps);
    if (levelChanged) {
        Q_EMIT qualityChanged(classify(tick));
    }
    Q_EMIT statsUpdated(tick);
}

void ConnectionQualityMonitor::clear() {
    const std::lock_guard lock(m_mutex);
    m_counters = {};
    m_stats = {};
}

} // namespace corvane
