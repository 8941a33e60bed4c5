#include "compare/OwnSystem.h"

#include "harness/SampleFile.h"

#include <QDir>

namespace corvane::compare {

using namespace std::chrono_literals;

namespace {

const QString kViewerTitle = QStringLiteral("Corvane - ");
constexpr QPoint kToolBar(-240, 20); // between its buttons

} // namespace

OwnSystem::OwnSystem(const Line& line, QSize screen, Way way, int displayMode)
    : m_way(way), m_session({.viewerDisplay = {},
                             .stillDesktop = true,
                             .showsDesktop = false,
                             .screen = screen,
                             .displayMode = displayMode,
                             .targetPlace = line.shared().entrance(),
                             .viewerPlace = line.viewer().entrance()}) {
    m_session.server().misbehaviour().setWithholdIce(way == Way::Relay);
}

bool OwnSystem::fail(const QString& error) {
    m_error = error;
    return false;
}

bool OwnSystem::start() {
    if (!m_session.start() || !m_session.connectToTarget()) {
        return fail(m_session.error());
    }
    const QString wanted = m_way == Way::Relay ? QStringLiteral("relay") : QStringLiteral("p2p");
    if (m_session.transport() != wanted) {
        return fail(QStringLiteral("the session goes by way of \"%1\"").arg(m_session.transport()));
    }
    return fillScreen();
}

bool OwnSystem::fillScreen() {
    m_user = std::make_unique<harness::DisplayUser>(m_session.viewerDisplay());
    const QSize screen = m_session.viewerDisplay().size();
    const auto fills = [&] {
        const auto window = m_session.viewerDisplay().findWindow(kViewerTitle);
        return window && window->size() == screen;
    };
    if (!harness::achieve([&] { m_session.viewerDisplay().fillScreen(kViewerTitle); }, fills) ||
        !m_user->clickInto(kViewerTitle, kToolBar)) {
        return fail(QStringLiteral("the viewer's window does not fill the screen"));
    }
    harness::waitFor([] { return false; }, 1s); // until the view has been laid out
    return true;
}

bool OwnSystem::startUpload(qint64 bytes) {
    const QString name = QStringLiteral("upload.bin");
    const QString folder = m_session.target().homePath(QStringLiteral("exchange"));
    const harness::ClientProcess& viewer = m_session.viewer();
    QDir().mkpath(folder);
    harness::writeSampleFile(folder + QStringLiteral("/first.bin"), 1);
    harness::writeSampleFile(viewer.homePath(name), bytes);
    m_files = std::make_unique<harness::FileManager>(*m_user, viewer, QStringLiteral("/"));
    if (!m_user->clickInto(kViewerTitle, kToolBar) || !m_files->open() ||
        !m_files->openRemoteFolder(folder) || !m_files->openLocalFolder(viewer.homePath({})) ||
        !m_files->selectRow(name)) {
        return fail(QStringLiteral("the file manager did not find the file"));
    }
    m_files->upload();
    return m_user->clickInto(kViewerTitle, kToolBar);
}

} // namespace corvane::compare
