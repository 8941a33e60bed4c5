#include "app/SingleInstanceGuard.h"

#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

namespace corvane {

namespace {

QString lockFilePath() {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty()) {
        folder = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    }
    QDir().mkpath(folder);
    return folder + QStringLiteral("/CorvaneClient.lock");
}

} // namespace

struct SingleInstanceGuard::Handle {
    QLockFile file{lockFilePath()};
    bool first = true;
};

SingleInstanceGuard::SingleInstanceGuard() : m_handle(std::make_unique<Handle>()) {
    // A lock whose owner is gone is stale at once; a live owner's never is, however old.
    m_handle->file.setStaleLockTime(0);
    m_handle->file.tryLock();
    // A folder that takes no lock file must not keep the program from starting.
    m_handle->first = m_handle->file.error() != QLockFile::LockFailedError;
}

SingleInstanceGuard::~SingleInstanceGuard() = default;

bool SingleInstanceGuard::isFirst() const {
    return m_handle->first;
}

} // namespace corvane
