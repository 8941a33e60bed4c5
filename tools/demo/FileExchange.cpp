#include "demo/FileExchange.h"

#include "demo/Stage.h"
#include "harness/SampleFile.h"
#include "harness/WaitFor.h"

#include <QDir>
#include <QFile>

namespace corvane::demo {

using namespace std::chrono_literals;

namespace {

const QString kFromTarget = QStringLiteral("from-target.bin");
const QString kFromViewer = QStringLiteral("from-viewer.bin");

constexpr qint64 kSize = 800'000; // a dozen upload blocks and a part of one

} // namespace

FileExchange::FileExchange(Stage& stage, const QString& remoteRoot)
    : m_stage(stage), m_manager(stage.viewer, stage.session.viewer(), remoteRoot) {}

void FileExchange::run() {
    m_stage.viewer.clickInto(kViewerTitle, kToolBar);
    if (!m_manager.open()) {
        m_stage.report.check(QStringLiteral("files"), false, QStringLiteral("no file manager"));
        return;
    }
    copyBothWays();
    m_stage.sheet.add(m_manager.kTitle, m_stage.viewer.look(m_manager.kTitle));
    m_manager.close();
}

void FileExchange::copyBothWays() {
    const harness::ClientProcess& viewer = m_stage.session.viewer();
    const QString remoteFolder = m_stage.session.target().homePath(QStringLiteral("exchange"));
    const QString offered = remoteFolder + u'/' + kFromTarget;
    QDir().mkpath(remoteFolder);
    harness::writeSampleFile(offered, kSize);
    harness::writeSampleFile(viewer.homePath(kFromViewer), kSize);

    // Nothing is selected on the local side, so the copy goes to the user's home folder.
    const bool offeredFound =
        m_manager.openRemoteFolder(remoteFolder) && m_manager.selectRow(kFromTarget);
    if (offeredFound) {
        m_manager.download();
    }
    checkCopy(QStringLiteral("download"), offeredFound, offered, viewer.homePath(kFromTarget));

    const bool ownFound =
        m_manager.openLocalFolder(viewer.homePath({})) && m_manager.selectRow(kFromViewer);
    if (ownFound) {
        m_manager.upload();
    }
    checkCopy(QStringLiteral("upload"), ownFound, viewer.homePath(kFromViewer),
              remoteFolder + u'/' + kFromViewer);
}

void FileExchange::checkCopy(const QString& name, bool started, const QString& original,
                             const QString& copy) {
    const QString wanted = harness::checksum(original);
    const bool same = started && !wanted.isEmpty() &&
                      harness::waitFor([&] { return harness::checksum(copy) == wanted; }, 20s);
    m_stage.report.check(name, same,
                         same ? QStringLiteral("%1 bytes, SHA-256 %2... on both sides")
                                    .arg(QFile(copy).size())
                                    .arg(wanted.first(16))
                              : (started ? QStringLiteral("no equal copy at %1").arg(copy)
                                         : QStringLiteral("the file was not to be found")));
}

} // namespace corvane::demo
