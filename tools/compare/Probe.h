#pragma once

#include <QRect>
#include <QString>

#include <chrono>
#include <vector>

namespace corvane::compare {

/// What a clock on the viewer's display told over a period.
struct ClockFigures {
    std::vector<double> ages; ///< of the shown picture in milliseconds, at equal intervals
    double picturesPerSecond = 0.0;
};

/// Looks at the viewer's display and presses keys there, on a thread of its own.
class Probe {
public:
    explicit Probe(const QString& viewerDisplay) : m_display(viewerDisplay) {}

    /// Presses a key `presses` times, at random intervals, and waits each time until the key block
    /// at `block` has changed colour. The times taken, in milliseconds; `kLostMs` for one that
    /// nothing came of.
    std::vector<double> pressKeys(const QRect& block, int presses) const;

    /// Reads the clock at `area` for that time. With a `hand`, the pointer moves to and fro in it
    /// meanwhile, as that of somebody who drags or scrolls.
    ClockFigures watchClock(const QRect& area, std::chrono::milliseconds duration,
                            const QRect& hand = {}) const;

    static constexpr double kLostMs = 5000.0;

private:
    const QString m_display;
};

} // namespace corvane::compare
