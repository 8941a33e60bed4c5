#include "compare/TigerVnc.h"

#include "harness/WaitFor.h"

#include <QProcessEnvironment>
#include <QStandardPaths>

namespace corvane::compare {

using namespace std::chrono_literals;

namespace {

const QString kServer = QStringLiteral("X0tigervnc");
const QString kViewer = QStringLiteral("xtigervncviewer");
const QString kDesktop = QStringLiteral("measured");
constexpr auto kStartTimeout = 30s;

void end(QProcess& process) {
    process.terminate();
    if (!process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished();
    }
}

} // namespace

TigerVnc::TigerVnc(const Line& line, QSize screen)
    : m_line(line), m_size(screen), m_sharedScreen(screen), m_viewerScreen(screen) {}

TigerVnc::~TigerVnc() {
    end(m_viewer);
    end(m_server);
}

QString TigerVnc::obstacle() {
    for (const QString& program : {kServer, kViewer}) {
        if (QStandardPaths::findExecutable(program).isEmpty()) {
            return QStringLiteral("%1 is not installed").arg(program);
        }
    }
    return {};
}

void TigerVnc::run(QProcess& process, const test::NetworkPlace& place, const QString& program,
                   const QStringList& arguments) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), m_home.path());
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setChildProcessModifier([enter = place.entrance()] {
        test::endWithParent();
        enter();
    });
    process.start(program, arguments);
    process.waitForStarted();
}

bool TigerVnc::start() {
    run(m_server, m_line.shared(), kServer,
        {QStringLiteral("-display"), sharedDisplay(), QStringLiteral("-SecurityTypes"),
         QStringLiteral("None"), QStringLiteral("-rfbport"), QStringLiteral("5900"),
         QStringLiteral("-desktop"), kDesktop});
    QByteArray said;
    harness::waitFor(
        [&] {
            said += m_server.readAll();
            return said.contains("Listening on");
        },
        kStartTimeout);
    run(m_viewer, m_line.viewer(), kViewer,
        {QStringLiteral("-display"), viewerDisplay(), QStringLiteral("-SecurityTypes"),
         QStringLiteral("None"), QStringLiteral("-RemoteResize=0"),
         QStringLiteral("%1::5900").arg(QLatin1String(Line::kSharedAddress))});
    harness::XDisplay display(viewerDisplay());
    const QString title = QStringLiteral("%1 - TigerVNC").arg(kDesktop);
    const auto fills = [&] {
        const auto window = display.findWindow(title);
        return window && window->size() == m_size;
    };
    // Without a window manager nobody else gives it the screen.
    const bool filled = harness::waitFor(
        [&] {
            display.fillScreen(title);
            return fills();
        },
        kStartTimeout);
    if (!filled) {
        m_error = QStringLiteral("no window of the viewer's; it says: ") +
                  QString::fromLocal8Bit(m_viewer.readAll());
        return false;
    }
    constexpr auto kHintShows = 6s; // about the menu key, over the picture
    harness::waitFor([] { return false; }, kHintShows);
    display.fillScreen(title); // for the keyboard
    display.click(QPoint(m_size.width() / 2, m_size.height() / 2));
    return true;
}

} // namespace corvane::compare
