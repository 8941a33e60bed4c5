#pragma once

#include "FileEntry.h"
#include "TransferQueue.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QList>
#include <QPointer>

#include <functional>

class QLabel;
class QProgressBar;
class QTreeWidgetItem;

namespace corvane {

class FileTransferService;
class LocalFilePane;
class MessageBoxes;
class RemoteFilePane;

/// Browses the partner's files beside this machine's own and copies them in both directions, one
/// file at a time: all waiting downloads first, then the uploads. Files chosen while a batch runs
/// join it.
///
/// An error of a transfer ends both batches: whatever answer comes in late finds nothing left to
/// start. A folder that cannot be listed leaves them alone. Closing hides the dialog and lets a
/// batch go on; the end of the service ends it.
///
/// Object names: those of its panes, "downloadButton", "uploadButton", "transferProgress" and
/// "transferStatus".
class FileManagerDialog : public QDialog {
    Q_OBJECT

public:
    /// The service is borrowed, may be null and may die first; then nothing is requested. Asks it
    /// for the top level at once.
    explicit FileManagerDialog(FileTransferService* service, QWidget* parent = nullptr);

public Q_SLOTS:
    void onRemoteDirectoryListed(const QString& path, const QList<corvane::FileEntry>& entries);
    void onRemoteItemDoubleClicked(QTreeWidgetItem* item, int column);
    void onRemoteBackClicked();
    void onDownloadClicked();
    void onUploadClicked();
    void onTransferError(const QString& error);
    void onDownloadComplete(const QString& localPath);
    void onUploadComplete();

private:
    /// What the partner owes an answer to. It answers in the order of the requests, which tells
    /// whose error an error is.
    enum class Request { Listing, Download };

    QWidget* createTransferButtons();
    void connectService();
    void openRemoteFolder(const QString& path);
    void requestListing();
    /// Calls `accepted` when nothing is to be overwritten or the user agrees. `question` has a
    /// place for the names.
    void confirmOverwrite(const QString& question, const QStringList& names,
                          std::function<void()> accepted);
    void enqueue(TransferQueue& queue, const QList<FileTransfer>& transfers);
    void startNext();
    void startNextLater();
    void startDownload();
    void startUpload();
    void showCurrent(const QString& text, const TransferQueue& queue);
    void showSpeed(int bytesPerSecond, int secondsLeft);
    /// The event loop does not run during an upload.
    void paintProgress();
    void showStatus(const QString& text);
    /// A status that lasts until the user opens a folder.
    void showResult(const QString& text);
    void dropTransfers();
    void onServiceGone();

    const QPointer<FileTransferService> m_service;
    QList<Request> m_unanswered;
    TransferQueue m_downloads;
    TransferQueue m_uploads;
    bool m_showsResult = false;
    QElapsedTimer m_sincePainted;

    RemoteFilePane* m_remote = nullptr;
    LocalFilePane* m_local = nullptr;
    QProgressBar* m_progress = nullptr;
    QLabel* m_status = nullptr;
    MessageBoxes* m_boxes = nullptr;
};

} // namespace corvane
