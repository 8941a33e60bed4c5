#pragma once

#include "services/TransferQueue.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

namespace corvane {

class FileTransferService;
struct FileTransferError;

/// Uses a service to list folders and to copy batches of files, one file at a time: all waiting
/// downloads first, then the uploads. Files added while a batch runs join it.
///
/// A failed transfer ends both batches, so that a late answer starts nothing more; so does the end
/// of the service. An upload that the partner could not save, which may be reported while something
/// else is under way, ends only the uploads. A folder that cannot be listed affects neither.
class TransferRunner : public QObject {
    Q_OBJECT

public:
    /// The service is borrowed, may be null and may be destroyed first; then nothing is requested.
    explicit TransferRunner(FileTransferService* service, QObject* parent = nullptr);

    bool hasService() const;

    /// Whether a batch is unfinished.
    bool isRunning() const { return m_downloads.isRunning() || m_uploads.isRunning(); }

    void list(const QString& remotePath);
    void download(const QList<FileTransfer>& transfers);
    void upload(const QList<FileTransfer>& transfers);

    /// The service has finished a transfer; ignored unless it is the one under way.
    void downloadComplete(const QString& localPath);
    void uploadComplete();

Q_SIGNALS:
    void batchStarted();
    void statusChanged(QString text);
    void transferStarting();
    /// One way or another.
    void uploadEnded();
    void uploadsComplete();

private:
    void requestFailed(const FileTransferError& error);
    /// Drops the waiting transfers and those under way.
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
