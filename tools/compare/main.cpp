#include "common/DisplayMode.h"
#include "compare/Line.h"
#include "compare/Measurement.h"
#include "compare/OwnSystem.h"
#include "compare/ResultTable.h"
#include "compare/TigerVnc.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <functional>

namespace {

using namespace corvane;
using namespace corvane::compare;
using namespace std::chrono_literals;

/// A system to measure and the column that it gets.
struct Candidate {
    QString column;
    std::function<std::unique_ptr<ISystem>(const Line&)> create;
};

struct Plan {
    QStringList parts;
    int presses = 30;
};

struct Mode {
    const char* name;
    int number;
};

/// "Smooth motion" has no name in older programs, where its number means the same as `Speed`.
constexpr int kSmoothMode = 2;
constexpr Mode kModes[] = {{"speed", static_cast<int>(DisplayMode::Speed)},
                           {"quality", static_cast<int>(DisplayMode::Quality)},
                           {"smooth", kSmoothMode}};

bool isKnown(const Mode& mode) {
    const DisplayMode setting{mode.number};
    return setting == DisplayMode::Speed || &presetOf(setting) != &presetOf(DisplayMode::Speed);
}

void say(const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// Starts the candidate on such a line and hands it to `measure`.
void measureOn(const test::Conditions& conditions, const Candidate& candidate, const Plan& plan,
               ResultTable& table, const std::function<void(Measurement&)>& measure) {
    const Line line(conditions);
    if (!line.obstacle().isEmpty()) {
        say(QStringLiteral("skipped: ") + line.obstacle());
        return;
    }
    const std::unique_ptr<ISystem> system = candidate.create(line);
    if (!system->start()) {
        say(QStringLiteral("%1 did not start: %2").arg(candidate.column, system->error()));
        return;
    }
    Measurement measurement({*system, line.shared(), table, candidate.column, plan.presses});
    if (!measurement.isReady()) {
        say(candidate.column + QStringLiteral(": the viewer does not show the scene"));
        return;
    }
    measure(measurement);
}

void measure(const Candidate& candidate, const Plan& plan, ResultTable& table) {
    say(QStringLiteral("measuring ") + candidate.column);
    const auto wants = [&](const char* part) {
        return plan.parts.contains(QLatin1String(part));
    };
    if (wants("latency") || wants("work") || wants("idle")) {
        measureOn({}, candidate, plan, table, [&](Measurement& measurement) {
            if (wants("latency")) {
                measurement.latency();
            }
            if (wants("work")) {
                measurement.work();
            }
            if (wants("idle")) {
                measurement.idle();
            }
        });
    }
    for (const int rate : {2000, 500}) {
        if (wants("slow")) {
            measureOn({.delay = 50ms, .kilobitsPerSecond = rate}, candidate, plan, table,
                      [rate](Measurement& measurement) {
                          measurement.slowLine(QStringLiteral("%1 kbit/s").arg(rate));
                      });
        }
    }
    if (wants("upload")) {
        measureOn(
            {.kilobitsPerSecond = 10'000}, candidate, plan, table,
            [](Measurement& measurement) { measurement.upload(QStringLiteral("10 Mbit/s")); });
    }
}

QSize parseSize(const QString& text) {
    const QStringList numbers = text.split(u'x');
    return numbers.size() == 2 ? QSize(numbers[0].toInt(), numbers[1].toInt()) : QSize();
}

/// Measures everything and prints one table for each display mode.
void compareAll(QSize size, const QStringList& modes, const Plan& plan) {
    const QString kTiger = QStringLiteral("TigerVNC");
    ResultTable table;
    if (const QString obstacle = TigerVnc::obstacle(); obstacle.isEmpty()) {
        measure({kTiger,
                 [size](const Line& line) {
                     return std::make_unique<TigerVnc>(line, size);
                 }},
                plan, table);
    } else {
        say(QStringLiteral("without TigerVNC: ") + obstacle);
    }
    for (const Mode& mode : kModes) {
        const QString name = QString::fromLatin1(mode.name);
        if (!modes.contains(name)) {
            continue;
        }
        if (!isKnown(mode)) {
            say(QStringLiteral("skipped: this program has no mode \"%1\"").arg(name));
            continue;
        }
        std::vector<QString> columns;
        for (const auto way : {OwnSystem::Way::Direct, OwnSystem::Way::Relay}) {
            const bool direct = way == OwnSystem::Way::Direct;
            if (direct && !CORVANE_HAS_P2P) {
                say(QStringLiteral("no direct sessions: built without libdatachannel"));
                continue;
            }
            columns.push_back(name +
                              (direct ? QStringLiteral(", direct") : QStringLiteral(", relay")));
            measure({columns.back(),
                     [&](const Line& line) {
                         return std::make_unique<OwnSystem>(line, size, way, mode.number);
                     }},
                    plan, table);
        }
        columns.push_back(kTiger);
        const QString heading = QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
        std::printf("\n%s", qPrintable(table.print(heading, columns)));
        std::fflush(stdout);
    }
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption size(QStringLiteral("size"), QStringLiteral("Size of both screens."),
                                  QStringLiteral("WxH"), QStringLiteral("1280x720"));
    const QCommandLineOption only(QStringLiteral("only"), QStringLiteral("What to measure."),
                                  QStringLiteral("parts"),
                                  QStringLiteral("latency,work,idle,slow,upload"));
    const QCommandLineOption modes(QStringLiteral("modes"),
                                   QStringLiteral("Which display modes to measure."),
                                   QStringLiteral("modes"), QStringLiteral("speed,quality,smooth"));
    const QCommandLineOption quick(QStringLiteral("quick"),
                                   QStringLiteral("Press fewer keys; the mode \"speed\" only."));
    parser.addOptions({size, only, modes, quick});
    parser.process(application);

    const QSize screen = parseSize(parser.value(size));
    if (screen.width() < 1000 || screen.height() < 600) {
        say(QStringLiteral("the screens must have at least 1000x600 pixels"));
        return EXIT_FAILURE;
    }
    const bool hurried = parser.isSet(quick);
    const Plan plan{parser.value(only).split(u','), hurried ? 10 : 30};
    compareAll(screen,
               hurried && !parser.isSet(modes) ? QStringList{QStringLiteral("speed")}
                                               : parser.value(modes).split(u','),
               plan);
    return EXIT_SUCCESS;
}
