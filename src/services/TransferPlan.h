#pragma once

#include "services/FileEntry.h"
#include "services/TransferQueue.h"

#include <QFileInfo>
#include <QList>
#include <QStringList>

namespace corvane {

/// What a selection comes to, before the user has agreed to it.
struct TransferPlan {
    QList<FileTransfer> transfers;
    QStringList overwritten; ///< names that already exist where they would go
};

/// Folders are left out, and so, with a log line, are names that would lead out of `localFolder`.
TransferPlan planDownloads(const QList<FileEntry>& entries, const QString& remoteFolder,
                           const QString& localFolder);

/// `remoteNames`: the files that are in the remote folder now.
TransferPlan planUploads(const QList<QFileInfo>& files, const QString& remoteFolder,
                         const QStringList& remoteNames);

} // namespace corvane
