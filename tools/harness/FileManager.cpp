#include "harness/FileManager.h"

#include "harness/ClientProcess.h"
#include "harness/DisplayUser.h"
#include "harness/WaitFor.h"

namespace corvane::harness {

using namespace std::chrono_literals;

const QString FileManager::kTitle = QStringLiteral("File Manager");

namespace {

// Near the bottom of the two lists.
constexpr QPoint kRemoteList(120, -130);
constexpr QPoint kLocalList(-120, -130);

QStringList foldersOf(const QString& path) {
    return path.split(u'/', Qt::SkipEmptyParts);
}

} // namespace

FileManager::FileManager(DisplayUser& user, const ClientProcess& viewer, const QString& remoteRoot)
    : m_user(user), m_viewer(viewer), m_remoteRoot(remoteRoot) {}

bool FileManager::open() {
    return m_user.openByKey(kTitle, 'f', {kKeyControl, kKeyShift});
}

bool FileManager::close() {
    return m_user.escape(kTitle);
}

bool FileManager::openRemoteFolder(const QString& path) {
    QString opened = m_remoteRoot;
    bool there =
        isListed({}) && goToFirstRow(kRemoteList) && findRow(m_remoteRoot) && enter(opened);
    for (const QString& folder : foldersOf(path)) {
        opened += (opened.endsWith(u'/') ? QString() : QStringLiteral("/")) + folder;
        there = there && selectRow(folder) && enter(opened);
    }
    return there;
}

bool FileManager::openLocalFolder(const QString& path) {
    const QString root = QStringLiteral("/");
    bool there = goToFirstRow(kLocalList) && findRow(root) && moveInto(root);
    for (const QString& folder : foldersOf(path)) {
        there = there && selectRow(folder) && moveInto(folder);
    }
    return there;
}

bool FileManager::selectRow(const QString& row) {
    constexpr int kAttempts = 10;
    constexpr auto kSearchForgets = 500ms; // the time after which a list forgets what was typed
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
        waitFor([] { return false; }, kSearchForgets);
        m_user.display().type(row);
        if (m_user.copied() == row) {
            return true;
        }
    }
    return false;
}

bool FileManager::goToFirstRow(QPoint list) {
    const bool there = m_user.clickInto(kTitle, list);
    m_user.display().pressKey(kKeyHome);
    return there;
}

bool FileManager::selectAllRemote() {
    const bool there = goToFirstRow(kRemoteList);
    m_user.display().pressKey('a', {kKeyControl});
    return there;
}

void FileManager::download() {
    pressNext({});
}

void FileManager::upload() {
    pressNext({kKeyShift});
}

bool FileManager::enter(const QString& expectedPath) {
    m_user.display().pressKey(kKeyReturn);
    return isListed(expectedPath);
}

bool FileManager::isListed(const QString& path) const {
    const QString line = QStringLiteral("received listing for '%1'").arg(path);
    return waitFor([&] { return !m_viewer.logLines(line).isEmpty(); }, 10s);
}

bool FileManager::moveInto(const QString& row) {
    return waitFor(
        [&] {
            m_user.display().pressKey(kKeyRight);
            return m_user.copied() != row;
        },
        10s);
}

bool FileManager::findRow(const QString& row) {
    return m_user.copied() == row || selectRow(row);
}

void FileManager::pressNext(const std::vector<xcb_keysym_t>& held) {
    m_user.display().pressKey(kKeyTab, held);
    m_user.display().pressKey(' ');
}

} // namespace corvane::harness
