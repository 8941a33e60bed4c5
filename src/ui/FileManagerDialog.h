#pragma once

#include "services/FileEntry.h"

#include <QDialog>
#include <QList>
#include <QStringList>

#include <functional>

class QTreeWidgetItem;

namespace corvane {

class FileTransferService;
class LocalFilePane;
class MessageBoxes;
class RemoteFilePane;
class TransferRunner;
class TransferStatus;

/// Browses the partner's files beside this machine's own and copies them in both directions, by the
/// rules of `TransferRunner`. Closing hides the dialog while a batch continues; the end of the
/// service ends it.
///
/// Object names: those of its parts, "downloadButton" and "uploadButton".
class FileManagerDialog : public QDialog {
    Q_OBJECT

public:
    /// The service is borrowed, may be null and may be destroyed first; then nothing is requested.
    /// Asks it for the top level at once.
    explicit FileManagerDialog(FileTransferService* service, QWidget* parent = nullptr);

public Q_SLOTS:
    void onRemoteDirectoryListed(const QString& path, const QList<corvane::FileEntry>& entries);
    void onRemoteItemDoubleClicked(QTreeWidgetItem* item, int column);
    void onRemoteBackClicked();
    void onDownloadClicked();
    void onUploadClicked();
    void onTransferError(const QString& error);
    /// Advance the queues, which also follow the service directly.
    void onDownloadComplete(const QString& localPath);
    void onUploadComplete();

private:
    QWidget* createTransferButtons();
    void connectRunner();
    void connectService(const FileTransferService* service);
    void openRemoteFolder(const QString& path);
    /// Calls `run` at once if nothing would be overwritten, otherwise when the user has agreed to
    /// it. `question` has a placeholder for the names.
    void confirm(const QString& question, const QStringList& overwritten,
                 const std::function<void()>& run);
    /// A status that lasts until the user opens a folder.
    void showResult(const QString& text);
    void onServiceGone();

    TransferRunner* m_runner = nullptr;
    MessageBoxes* m_boxes = nullptr;
    bool m_showsResult = false;

    RemoteFilePane* m_remote = nullptr;
    LocalFilePane* m_local = nullptr;
    TransferStatus* m_status = nullptr;
};

} // namespace corvane
