#include "demo/FileExchange.h"
#include "demo/Services.h"
#include "demo/Stage.h"
#include "demo/WindowTour.h"
#include "harness/PictureComparison.h"
#include "harness/WineHost.h"

#include <QCommandLineParser>
#include <QDir>
#include <QGuiApplication>
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

/// On an interrupt, ends what the session has started, at any point of the demonstration.
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
    const auto withoutPeers =
        session.viewer().logLines(QStringLiteral("Built without the peer-to-peer transport"));
    if (!withoutPeers.isEmpty()) {
        report.fact(QStringLiteral("transport"),
                    transport + QStringLiteral(", since peer-to-peer is not built in"));
    } else if (relayWanted) {
        report.check(QStringLiteral("transport"), transport == u"relay", transport);
    } else {
        report.fact(QStringLiteral("transport"), transport);
    }
}

void describeSession(harness::LiveSession& session, demo::DemoReport& report) {
    report.fact(QStringLiteral("viewer's states"),
                harness::LiveSession::stateChanges(session.viewer()));
    report.fact(QStringLiteral("target's states"),
                harness::LiveSession::stateChanges(session.target()));
}

void checkTyping(harness::LiveSession& session, demo::DemoReport& report) {
    const QString word = QStringLiteral("Corvane2026");
    const bool arrived = session.typeRemotely(word);
    report.check(QStringLiteral("typed word"), arrived,
                 arrived ? QStringLiteral("\"%1\" arrived on the target").arg(word)
                         : session.error());
}

void save(const QString& name, const QDir& folder, const QString& file, const QImage& picture,
          demo::DemoReport& report) {
    const QString path = folder.absoluteFilePath(file);
    report.check(name, folder.mkpath(QStringLiteral(".")) && picture.save(path), path);
}

/// Compares the two screens while they stand still, and keeps the images compared.
void checkPicture(harness::LiveSession& session, const QDir& screenshots,
                  demo::DemoReport& report) {
    session.setDesktopRunning(false);
    const double fidelity = session.pictureFidelity();
    const QImage viewer = session.viewerScreen();
    const QImage target = session.targetScreen();
    session.setDesktopRunning(true);
    report.check(QStringLiteral("picture"), fidelity >= kSamePictureDb,
                 QStringLiteral("%1 dB PSNR against the target's screen (at least %2)")
                     .arg(fidelity, 0, 'f', 1)
                     .arg(kSamePictureDb, 0, 'f', 0));
    save(QStringLiteral("screenshot"), screenshots, QStringLiteral("viewer.png"), viewer, report);
    save(QStringLiteral("screenshot"), screenshots, QStringLiteral("target.png"), target, report);
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

void watch(harness::LiveSession& session) {
    std::puts("Watching: close the viewer's window twice or press Ctrl+C to end.");
    harness::waitFor([&] { return !session.viewer().isRunning(); }, std::chrono::hours(24));
}

/// Runs all acts. False when the session did not start.
bool present(harness::LiveSession& session, bool onWindows, bool relayWanted,
             const QDir& screenshots, demo::DemoReport& report) {
    session.server().setManifestVersion(QStringLiteral("9.0.0")); // for the update banner
    if (!report.check(QStringLiteral("devices"), session.start(),
                      session.error().isEmpty() ? QStringLiteral("online") : session.error())) {
        return false;
    }
    demo::Stage stage{session, report};
    demo::tourHome(stage);
    const bool connected = session.connectToTarget();
    if (!report.check(QStringLiteral("session"), connected,
                      connected ? QStringLiteral("Connected") : session.error())) {
        return false;
    }
    reportTransport(session, relayWanted, report);
    describeSession(session, report);
    checkTyping(session, report);
    checkPicture(session, screenshots, report);
    checkStream(session, report);
    checkRoundTrip(session, report);
    session.setDesktopRunning(false);
    demo::exchangeChat(stage);
    demo::exchangeClipboard(stage);
    demo::FileExchange(stage, onWindows ? QStringLiteral("Z:/") : QStringLiteral("/")).run();
    demo::tourViewer(stage);
    session.setDesktopRunning(true);
    save(QStringLiteral("contact sheet"), screenshots, QStringLiteral("windows.png"),
         stage.sheet.draw(), report);
    return true;
}

} // namespace

int main(int argc, char** argv) {
    // Needs fonts for the contact sheet, but no display of its own, unlike what it starts.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    qunsetenv("QT_QPA_PLATFORM");

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
    if (present(live, onWindows, parser.isSet(relay), parser.value(output), report) &&
        parser.isSet(watching)) {
        watch(live);
    }
    return report.isGood() ? EXIT_SUCCESS : EXIT_FAILURE;
}
