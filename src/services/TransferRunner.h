#pragma once

#include "services/TransferQueue.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

namespace corvane {

class FileTransferService;
struct FileTransferError;

/// Has a service list folders and copy batches of files, one file at a time: all waiting downloads
/// first, then the uploads. Files added while a batch runs join it.
///
/// An error of a transfer ends both batches: whatever answer comes in late finds nothing left to
/// start. So does the end of the service. Only the uploads end when the partner could not keep one,
/// which it says while whatever else may be under way. A folder that cannot be listed leaves both
/// alone.
class TransferRunner : public QObject {
    Q_OBJECT

public:
    /// The service is borrowed, may be null and may die first; then nothing is requested.
    explicit TransferRunner(FileTransferService* service, QObject* parent = nullptr);

    bool hasService() const;

    /// Whether a batch is not through yet.
    bool isRunning() const { return m_downloads.isRunning() || m_uploads.isRunning(); }

    void list(const QString& remotePath);
    void download(const QList<FileTransfer>& transfers);
    void upload(const QList<FileTransfer>& transfers);

    /// The transfer under way has ended well, as the service says; otherwise they do nothing.
    void downloadComplete(const QString& localPath);
    void uploadComplete();

Q_SIGNALS:
    void batchStarted();
    void statusChanged(QString text);
    /// For an upload, the event loop does not run from now on until `uploadEnded`.
    void transferStarting();
    void uploadEnded();
    void uploadsComplete();

private:
    void requestFailed(const FileTransferError& error);
    /// Forgets what waits and what is under way.
    void stop();
    void append(TransferQueue& queue, const QList<FileTransfer>& transfers);
    void startNext();
    void startNextLater();
    void startDownload();
    void startUpload();
    void reportDownload();
    void reportCurrent(const QString& text, const TransferQueue& queue);

    const QPointer<FileTransferService> m_service;
    TransferQueue m_downloads;
    TransferQueue m_uploads;
};

} // namespace corvane
