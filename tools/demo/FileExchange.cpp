#include "FileExchange.h"

#include "Stage.h"
#include "WaitFor.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QRandomGenerator>

#include <vector>

namespace corvane::demo {

using namespace std::chrono_literals;

namespace {

const QString kFileManagerTitle = QStringLiteral("File Manager");
const QString kFromTarget = QStringLiteral("from-target.bin");
const QString kFromViewer = QStringLiteral("from-viewer.bin");

// Near the lower ends of the two lists.
constexpr QPoint kRemoteList(120, -130);
constexpr QPoint kLocalList(-120, -130);

void writeRandomFile(const QString& path) {
    constexpr qsizetype kWords = 200'000; // 800 kB: a dozen upload blocks and a bit
    std::vector<quint32> words(kWords);
    QRandomGenerator::global()->fillRange(words.data(), kWords);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(reinterpret_cast<const char*>(words.data()),
                   kWords * static_cast<qint64>(sizeof(quint32)));
    }
}

/// SHA-256 in hexadecimal digits; empty where there is no file.
QString checksum(const QString& path) {
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file)
               ? QString::fromLatin1(hash.result().toHex())
               : QString();
}

QStringList foldersOf(const QString& path) {
    return path.split(u'/', Qt::SkipEmptyParts);
}

} // namespace

FileExchange::FileExchange(Stage& stage, const QString& remoteRoot)
    : m_stage(stage), m_remoteRoot(remoteRoot) {}

void FileExchange::run() {
    m_stage.viewer.clickInto(kViewerTitle, kToolBar);
    if (!m_stage.viewer.openByKey(kFileManagerTitle, 'f',
                                  {harness::kKeyControl, harness::kKeyShift})) {
        m_stage.report.check(QStringLiteral("files"), false, QStringLiteral("no file manager"));
        return;
    }
    copyBothWays();
    m_stage.sheet.add(kFileManagerTitle, m_stage.viewer.look(kFileManagerTitle));
    m_stage.viewer.escape(kFileManagerTitle);
}

void FileExchange::copyBothWays() {
    const harness::ClientProcess& viewer = m_stage.session.viewer();
    const QString remoteFolder = m_stage.session.target().homePath(QStringLiteral("exchange"));
    const QString offered = remoteFolder + u'/' + kFromTarget;
    QDir().mkpath(remoteFolder);
    writeRandomFile(offered);
    writeRandomFile(viewer.homePath(kFromViewer));

    // Nothing is selected on the local side, so the copy goes to the user's home.
    const bool offeredFound =
        openRemoteFolder(foldersOf(remoteFolder)) && selectRow(kFromTarget) && pressNext({});
    checkCopy(QStringLiteral("download"), offeredFound, offered, viewer.homePath(kFromTarget));

    const bool ownFound = expandLocalFolder(foldersOf(viewer.homePath({}))) &&
                          selectRow(kFromViewer) && pressNext({harness::kKeyShift});
    checkCopy(QStringLiteral("upload"), ownFound, viewer.homePath(kFromViewer),
              remoteFolder + u'/' + kFromViewer);
}

bool FileExchange::pressNext(const std::vector<xcb_keysym_t>& held) {
    m_stage.viewer.display().pressKey(harness::kKeyTab, held);
    m_stage.viewer.display().pressKey(' ');
    return true;
}

bool FileExchange::openRemoteFolder(const QStringList& folders) {
    QString path = m_remoteRoot;
    bool there = isListed({}) && m_stage.viewer.clickInto(kFileManagerTitle, kRemoteList) &&
                 selectFirstRow(m_remoteRoot) && enter(path);
    for (const QString& folder : folders) {
        path += (path.endsWith(u'/') ? QString() : QStringLiteral("/")) + folder;
        there = there && selectRow(folder) && enter(path);
    }
    return there;
}

bool FileExchange::enter(const QString& expectedPath) {
    m_stage.viewer.display().pressKey(harness::kKeyReturn);
    return isListed(expectedPath);
}

bool FileExchange::isListed(const QString& path) const {
    const QString line = QStringLiteral("received listing for '%1'").arg(path);
    return harness::waitFor([&] { return !m_stage.session.viewer().logLines(line).isEmpty(); },
                            10s);
}

bool FileExchange::expandLocalFolder(const QStringList& folders) {
    const QString root = QStringLiteral("/");
    bool there = m_stage.viewer.clickInto(kFileManagerTitle, kLocalList) && selectFirstRow(root) &&
                 moveInto(root);
    for (const QString& folder : folders) {
        there = there && selectRow(folder) && moveInto(folder);
    }
    return there;
}

bool FileExchange::moveInto(const QString& row) {
    return harness::waitFor(
        [&] {
            m_stage.viewer.display().pressKey(harness::kKeyRight);
            return m_stage.viewer.copied() != row;
        },
        10s);
}

bool FileExchange::selectFirstRow(const QString& row) {
    m_stage.viewer.display().pressKey(harness::kKeyHome);
    return m_stage.viewer.copied() == row || selectRow(row);
}

bool FileExchange::selectRow(const QString& row) {
    constexpr int kAttempts = 10;
    constexpr auto kSearchForgets = 500ms; // what was typed before
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        harness::waitFor([] { return false; }, kSearchForgets);
        m_stage.viewer.display().type(row);
        if (m_stage.viewer.copied() == row) {
            return true;
        }
    }
    return false;
}

void FileExchange::checkCopy(const QString& name, bool started, const QString& original,
                             const QString& copy) {
    const QString wanted = checksum(original);
    const bool same = started && !wanted.isEmpty() &&
                      harness::waitFor([&] { return checksum(copy) == wanted; }, 20s);
    m_stage.report.check(name, same,
                         same ? QStringLiteral("%1 bytes, SHA-256 %2... on both sides")
                                    .arg(QFile(copy).size())
                                    .arg(wanted.first(16))
                              : (started ? QStringLiteral("no equal copy at %1").arg(copy)
                                         : QStringLiteral("the file was not to be found")));
}

} // namespace corvane::demo
