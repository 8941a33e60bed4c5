#pragma once

#include "services/FileEntry.h"
#include "services/TransferQueue.h"

#include <QFileInfo>
#include <QList>
#include <QStringList>

namespace corvane {

/// The transfers that a selection amounts to, before the user has agreed to them.
struct TransferPlan {
    QList<FileTransfer> transfers;
    QStringList overwritten; ///< names that already exist at the destination
};

/// Leaves out folders and, with a log line, names that would lead out of `localFolder`.
TransferPlan planDownloads(const QList<FileEntry>& entries, const QString& remoteFolder,
                           const QString& localFolder);

/// `remoteNames`: the names of the files now in the remote folder.
TransferPlan planUploads(const QList<QFileInfo>& files, const QString& remoteFolder,
                         const QStringList& remoteNames);

} // namespace corvane
