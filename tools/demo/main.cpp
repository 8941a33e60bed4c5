#include "DemoReport.h"
#include "LiveSession.h"
#include "PictureComparison.h"
#include "WineHost.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QSocketNotifier>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <sys/signalfd.h>
#include <utility>
#include <vector>

namespace {

using namespace corvane;
using namespace std::chrono_literals;

/// Above what two different desktops reach, below what scaling and the codec leave of the same one.
constexpr double kSamePictureDb = 25.0;

/// On an interrupt ends what the session started, wherever the demonstration stands.
void endOnInterrupt(harness::LiveSession& session) {
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGINT);
    sigaddset(&signals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    auto* const notifier =
        new QSocketNotifier(signalfd(-1, &signals, SFD_CLOEXEC), QSocketNotifier::Read, qApp);
    QObject::connect(notifier, &QSocketNotifier::activated, [&session] {
        session.end();
        std::_Exit(EXIT_FAILURE);
    });
}

void reportTransport(harness::LiveSession& session, bool relayWanted, demo::DemoReport& report) {
    const QString transport = session.transport();
    if (relayWanted) {
        report.check(QStringLiteral("transport"), transport == u"relay", transport);
    } else {
        report.fact(QStringLiteral("transport"), transport);
    }
}

void checkTyping(harness::LiveSession& session, demo::DemoReport& report) {
    const QString word = QStringLiteral("Corvane2026");
    const bool arrived = session.typeRemotely(word);
    report.check(QStringLiteral("typed word"), arrived,
                 arrived ? QStringLiteral("\"%1\" arrived on the target").arg(word)
                         : session.error());
}

void checkPicture(harness::LiveSession& session, demo::DemoReport& report) {
    session.setDesktopRunning(false);
    const double fidelity = session.pictureFidelity();
    session.setDesktopRunning(true);
    report.check(QStringLiteral("picture"), fidelity >= kSamePictureDb,
                 QStringLiteral("%1 dB PSNR against the target's screen (at least %2)")
                     .arg(fidelity, 0, 'f', 1)
                     .arg(kSamePictureDb, 0, 'f', 0));
}

void checkStream(harness::LiveSession& session, demo::DemoReport& report) {
    const harness::StreamFigures figures = session.measureStream(5s);
    report.check(QStringLiteral("frames per second"), figures.framesPerSecond > 0.0,
                 QString::number(figures.framesPerSecond, 'f', 1));
    report.check(QStringLiteral("encoded kbit/s"), figures.kilobitsPerSecond > 0.0,
                 QString::number(figures.kilobitsPerSecond, 'f', 0));
}

void checkRoundTrip(harness::LiveSession& session, demo::DemoReport& report) {
    std::vector<qint64> milliseconds;
    for (int i = 0; i < 7; ++i) {
        if (const auto measured = session.inputRoundTrip()) {
            milliseconds.push_back(measured->count());
        }
        session.measureStream(300ms); // lets the picture settle
    }
    std::sort(milliseconds.begin(), milliseconds.end());
    report.check(QStringLiteral("input round trip"), !milliseconds.empty(),
                 milliseconds.empty()
                     ? QStringLiteral("no key press showed up in the viewer's picture")
                     : QStringLiteral("%1 ms median of %2 (fastest %3, slowest %4)")
                           .arg(milliseconds[milliseconds.size() / 2])
                           .arg(milliseconds.size())
                           .arg(milliseconds.front())
                           .arg(milliseconds.back()));
}

void saveScreenshots(harness::LiveSession& session, const QString& folder,
                     demo::DemoReport& report) {
    QDir().mkpath(folder);
    for (const auto& [name, screen] : {std::pair{"viewer.png", session.viewerScreen()},
                                       std::pair{"target.png", session.targetScreen()}}) {
        const QString path = QDir(folder).absoluteFilePath(QLatin1String(name));
        report.check(QStringLiteral("screenshot"), screen.save(path), path);
    }
}

void watch(harness::LiveSession& session) {
    std::puts("Watching: close the viewer's window twice or press Ctrl+C to end.");
    harness::waitFor([&] { return !session.viewer().isRunning(); }, std::chrono::hours(24));
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);

    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption display(
        QStringLiteral("display"),
        QStringLiteral("Show the viewer on this X display instead of a virtual one."),
        QStringLiteral("name"));
    const QCommandLineOption output(QStringLiteral("output"),
                                    QStringLiteral("Folder for the screenshots."),
                                    QStringLiteral("folder"), QStringLiteral("."));
    const QCommandLineOption watching(QStringLiteral("watch"),
                                      QStringLiteral("Keep the session open at the end."));
    const QCommandLineOption relay(
        QStringLiteral("relay"),
        QStringLiteral("Keep the two from meeting directly, so that the relay carries them."));
    const QCommandLineOption windowsTarget(
        QStringLiteral("windows-target"),
        QStringLiteral("Share a Windows machine: the packaged program under Wine."));
    parser.addOptions({display, output, relay, watching, windowsTarget});
    parser.process(application);

    const bool onWindows = parser.isSet(windowsTarget);
    if (const QString obstacle = harness::WineHost::obstacle(); onWindows && !obstacle.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(obstacle));
        return EXIT_FAILURE;
    }
    harness::LiveSession live(
        {.viewerDisplay = parser.value(display),
         .stillDesktop = false,
         .target = onWindows ? harness::Platform::Windows : harness::Platform::Linux,
         .viewer = harness::Platform::Linux});
    live.server().misbehaviour().setWithholdIce(parser.isSet(relay));
    endOnInterrupt(live);
    demo::DemoReport report;
    const bool connected = live.start() && live.connectToTarget();
    if (!report.check(QStringLiteral("session"), connected,
                      connected ? QStringLiteral("Connected") : live.error())) {
        return EXIT_FAILURE;
    }
    reportTransport(live, parser.isSet(relay), report);
    report.fact(QStringLiteral("viewer's states"),
                harness::LiveSession::stateChanges(live.viewer()));
    report.fact(QStringLiteral("target's states"),
                harness::LiveSession::stateChanges(live.target()));
    checkTyping(live, report);
    checkPicture(live, report);
    checkStream(live, report);
    checkRoundTrip(live, report);
    saveScreenshots(live, parser.value(output), report);
    if (parser.isSet(watching)) {
        watch(live);
    }
    return report.isGood() ? EXIT_SUCCESS : EXIT_FAILURE;
}
