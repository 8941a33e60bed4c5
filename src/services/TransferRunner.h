#pragma once

#include "services/TransferQueue.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

namespace corvane {

class FileTransferService;

/// Has a service list folders and copy batches of files, one file at a time: all waiting downloads
/// first, then the uploads. Files added while a batch runs join it. Whoever receives the service's
/// signals reports them here.
///
/// An error of a transfer ends both batches: whatever answer comes in late finds nothing left to
/// start. Only the uploads end when the partner could not keep one, which it says while whatever
/// else may be under way. A folder that cannot be listed leaves both alone.
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

    void folderListed(const QString& remotePath);
    void downloadComplete(const QString& localPath);
    void uploadComplete();
    void requestFailed(const QString& error);

    /// Forgets what waits and what is under way.
    void stop();

Q_SIGNALS:
    void batchStarted();
    void statusChanged(QString text);
    /// For an upload, the event loop does not run from now on until `uploadEnded`.
    void transferStarting();
    void uploadEnded();
    void uploadsComplete();

private:
    bool takeListing(const QString& error);
    void append(TransferQueue& queue, const QList<FileTransfer>& transfers);
    void startNext();
    void startNextLater();
    void startDownload();
    void startUpload();
    void reportDownload();
    void reportCurrent(const QString& text, const TransferQueue& queue);

    const QPointer<FileTransferService> m_service;
    QStringList m_listings; ///< the folders whose listing has not come yet
    TransferQueue m_downloads;
    TransferQueue m_uploads;
};

} // namespace corvane
