#include "services/TransferPlan.h"

#include "common/LoggableText.h"
#include "services/RemotePath.h"

#include <QDir>
#include <QSet>
#include <spdlog/spdlog.h>

namespace corvane {

TransferPlan planDownloads(const QList<FileEntry>& entries, const QString& remoteFolder,
                           const QString& localFolder) {
    constexpr size_t kMaxLoggedName = 255;
    TransferPlan plan;
    for (const FileEntry& entry : entries) {
        if (entry.isDirectory) {
            continue;
        }
        if (!isPlainFileName(entry.name)) {
            spdlog::warn("FileManagerDialog: skipping '{}', which is not a file name",
                         loggableText(entry.name.toStdString(), kMaxLoggedName));
            continue;
        }
        const QString localPath = localFolder + QDir::separator() + entry.name;
        plan.transfers.append({joinRemotePath(remoteFolder, entry.name), localPath});
        if (QFileInfo::exists(localPath)) {
            plan.overwritten.append(entry.name);
        }
    }
    return plan;
}

TransferPlan planUploads(const QList<QFileInfo>& files, const QString& remoteFolder,
                         const QStringList& remoteNames) {
    const QSet<QString> existing(remoteNames.begin(), remoteNames.end());
    TransferPlan plan;
    for (const QFileInfo& file : files) {
        const QString name = file.fileName();
        plan.transfers.append({joinRemotePath(remoteFolder, name), file.filePath()});
        if (existing.contains(name)) {
            plan.overwritten.append(name);
        }
    }
    return plan;
}

} // namespace corvane
