#include "compare/Probe.h"

#include "common/MonotonicClock.h"
#include "compare/Aside.h"
#include "compare/ClockPattern.h"
#include "harness/XDisplay.h"

#include <QElapsedTimer>
#include <QRandomGenerator>

#include <optional>
#include <set>

namespace corvane::compare {

namespace {

constexpr int kMiddleGrey = 128;

/// The brightness around a point, from 0 to 255.
int brightness(const QImage& image, QPoint centre, int reach) {
    int sum = 0;
    int count = 0;
    for (int y = centre.y() - reach; y <= centre.y() + reach; ++y) {
        for (int x = centre.x() - reach; x <= centre.x() + reach; ++x) {
            sum += image.valid(x, y) ? qGray(image.pixel(x, y)) : 0;
            ++count;
        }
    }
    return sum / count;
}

bool isWhite(const harness::XDisplay& display, const QRect& block) {
    constexpr int kReach = 3;
    const QRect middle(block.center() - QPoint(kReach, kReach),
                       QSize(2 * kReach + 1, 2 * kReach + 1));
    return brightness(display.grab(middle), QPoint(kReach, kReach), kReach) >= kMiddleGrey;
}

std::optional<uint32_t> readClock(const QImage& image) {
    using namespace clock_pattern;
    Cells cells{};
    for (int cell = 0; cell < kColumns * kRows; ++cell) {
        const QPoint centre((2 * (cell % kColumns) + 1) * image.width() / (2 * kColumns),
                            (2 * (cell / kColumns) + 1) * image.height() / (2 * kRows));
        cells[static_cast<size_t>(cell)] = brightness(image, centre, 2) >= kMiddleGrey;
    }
    return decode(cells);
}

/// The time of a press; no value when nothing changed.
double pressOnce(harness::XDisplay& display, const QRect& block) {
    const bool before = isWhite(display, block);
    QElapsedTimer clock;
    clock.start();
    display.tapKey('k');
    while (clock.elapsed() < static_cast<qint64>(Probe::kLostMs)) {
        if (isWhite(display, block) != before) {
            return static_cast<double>(clock.nsecsElapsed()) / 1e6;
        }
        QThread::usleep(500);
    }
    return Probe::kLostMs;
}

} // namespace

std::vector<double> Probe::pressKeys(const QRect& block, int presses) const {
    constexpr int kMinPauseMs = 250;
    constexpr int kMaxPauseMs = 600;
    std::vector<double> times;
    runAside([&] {
        harness::XDisplay display(m_display);
        QRandomGenerator random(1); // the same pauses for every system
        for (int press = 0; press < presses; ++press) {
            QThread::msleep(static_cast<unsigned long>(random.bounded(kMinPauseMs, kMaxPauseMs)));
            times.push_back(pressOnce(display, block));
        }
    });
    return times;
}

ClockFigures Probe::watchClock(const QRect& area, std::chrono::milliseconds duration,
                               const QRect& hand) const {
    ClockFigures figures;
    std::set<uint32_t> shown;
    runAside([&] {
        constexpr qint64 kMoveIntervalMs = 20;
        harness::XDisplay display(m_display);
        QElapsedTimer clock;
        clock.start();
        qint64 moves = 0;
        while (clock.elapsed() < duration.count()) {
            if (!hand.isEmpty() && clock.elapsed() >= moves * kMoveIntervalMs) {
                display.movePointer(hand.topLeft() +
                                    QPoint(static_cast<int>(moves % hand.width()), 0));
                ++moves;
            }
            const QImage image = display.grab(area);
            const auto now = static_cast<uint32_t>(monotonicMilliseconds());
            if (const auto time = readClock(image)) {
                shown.insert(*time);
                figures.ages.push_back((now - *time) % clock_pattern::kPeriod);
            }
            QThread::msleep(3);
        }
        figures.picturesPerSecond =
            static_cast<double>(shown.size()) * 1000.0 / static_cast<double>(clock.elapsed());
    });
    return figures;
}

} // namespace corvane::compare
