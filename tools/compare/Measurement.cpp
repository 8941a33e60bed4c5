#include "compare/Measurement.h"

#include "compare/ProcessTime.h"
#include "compare/SceneLayout.h"
#include "harness/WaitFor.h"

#include <cstdio>

namespace corvane::compare {

using namespace std::chrono_literals;

namespace {

constexpr int kHighPercentile = 90;

QRect rectangle(const Area& area) {
    return {area.x, area.y, area.width, area.height};
}

void pause(std::chrono::milliseconds duration) {
    harness::waitFor([] { return false; }, duration);
}

} // namespace

Measurement::Measurement(const Target& target)
    : m_target(target), m_scene(target.system.sharedDisplay()),
      m_probe(target.system.viewerDisplay()) {}

QRect Measurement::keyBlock() {
    return m_target.system.onViewer(rectangle(layout::kKeyBlock));
}

QRect Measurement::clock() {
    return m_target.system.onViewer(rectangle(layout::kClock));
}

bool Measurement::isReady() {
    constexpr int kAttempts = 5;
    bool ready = m_scene.begin(QStringLiteral("clock"));
    for (int attempt = 0; ready && attempt < kAttempts; ++attempt) {
        if (!m_probe.watchClock(clock(), 2s).ages.empty()) {
            return true;
        }
    }
    return false;
}

void Measurement::keys(const QString& row) {
    const std::vector<double> times = m_probe.pressKeys(keyBlock(), m_target.presses);
    m_target.table.setSpread(row + QStringLiteral(", ms (median / p90 / max)"), m_target.column,
                             times, kHighPercentile);
}

void Measurement::latency() {
    m_scene.begin(QStringLiteral("still"));
    pause(2s);
    keys(QStringLiteral("key to pixel, still"));
    m_scene.begin(QStringLiteral("drag"));
    pause(1s);
    keys(QStringLiteral("key to pixel, dragging"));
}

void Measurement::work() {
    constexpr auto kPhase = 3500ms;
    m_scene.begin(QStringLiteral("still"));
    pause(2s);
    const qint64 bytes = m_target.sharedPlace.bytesSent();
    const double sharing = processorMilliseconds(m_target.system.sharingProcess());
    const double viewing = processorMilliseconds(m_target.system.viewingProcess());
    std::map<QString, double> pictures;
    for (const char* phase : {"type", "scroll", "drag", "terminal"}) {
        const QString name = QString::fromLatin1(phase);
        m_scene.begin(name);
        const bool byHand = name == u"scroll" || name == u"drag";
        pictures[name] =
            m_probe.watchClock(clock(), kPhase, byHand ? keyBlock() : QRect()).picturesPerSecond;
    }
    const auto set = [this](const QString& row, double value) {
        m_target.table.set(row, m_target.column, value);
    };
    set(QStringLiteral("sent in 14 s of work, kB"),
        static_cast<double>(m_target.sharedPlace.bytesSent() - bytes) / 1000.0);
    set(QStringLiteral("processor of the sharing side for it, s"),
        (processorMilliseconds(m_target.system.sharingProcess()) - sharing) / 1000.0);
    set(QStringLiteral("processor of the viewer for it, s"),
        (processorMilliseconds(m_target.system.viewingProcess()) - viewing) / 1000.0);
    set(QStringLiteral("pictures a second, scrolling (of 60)"), pictures[QStringLiteral("scroll")]);
    set(QStringLiteral("pictures a second, dragging (of 60)"), pictures[QStringLiteral("drag")]);
}

void Measurement::idle() {
    constexpr auto kDuration = 10s;
    m_scene.begin(QStringLiteral("still"));
    pause(3s);
    const double before = processorMilliseconds(m_target.system.sharingProcess());
    const qint64 bytes = m_target.sharedPlace.bytesSent();
    pause(kDuration);
    m_target.table.set(QStringLiteral("processor of the sharing side, still for 10 s, %"),
                       m_target.column,
                       (processorMilliseconds(m_target.system.sharingProcess()) - before) / 100.0);
    m_target.table.set(QStringLiteral("sent, still for 10 s, kB"), m_target.column,
                       static_cast<double>(m_target.sharedPlace.bytesSent() - bytes) / 1000.0);
}

void Measurement::slowLine(const QString& line) {
    constexpr int kPercentile = 95;
    m_scene.begin(QStringLiteral("clock"));
    pause(2s);
    const ClockFigures figures = m_probe.watchClock(clock(), 10s);
    m_target.table.setSpread(line + QStringLiteral(": age of the picture, ms (median / p95 / max)"),
                             m_target.column, figures.ages, kPercentile);
    m_scene.begin(QStringLiteral("drag"));
    pause(3s);
    keys(line + QStringLiteral(": key, dragging"));
}

void Measurement::upload(const QString& line) {
    constexpr qint64 kBytes = 100'000'000;
    m_scene.begin(QStringLiteral("still"));
    pause(2s);
    keys(line + QStringLiteral(": key"));
    if (!m_target.system.startUpload(kBytes)) {
        if (!m_target.system.error().isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(m_target.column),
                         qPrintable(m_target.system.error()));
        }
        return;
    }
    pause(3s);
    keys(line + QStringLiteral(": key, uploading"));
}

} // namespace corvane::compare
