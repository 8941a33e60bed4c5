#include "services/TransferRunner.h"

#include "common/ShownNames.h"
#include "services/FileTransferError.h"
#include "services/FileTransferService.h"

#include <QFileInfo>

namespace corvane {

TransferRunner::TransferRunner(FileTransferService* service, QObject* parent)
    : QObject(parent), m_service(service) {
    if (!service) {
        return;
    }
    connect(service, &FileTransferService::fileDownloadComplete, this,
            &TransferRunner::downloadComplete);
    connect(service, &FileTransferService::fileUploadComplete, this,
            &TransferRunner::uploadComplete);
    connect(service, &FileTransferService::requestFailed, this, &TransferRunner::requestFailed);
    connect(service, &QObject::destroyed, this, &TransferRunner::stop);
}

bool TransferRunner::hasService() const {
    return m_service != nullptr;
}

void TransferRunner::list(const QString& remotePath) {
    if (m_service) {
        m_service->requestListing(remotePath);
    }
}

void TransferRunner::download(const QList<FileTransfer>& transfers) {
    append(m_downloads, transfers);
}

void TransferRunner::upload(const QList<FileTransfer>& transfers) {
    append(m_uploads, transfers);
}

void TransferRunner::append(TransferQueue& queue, const QList<FileTransfer>& transfers) {
    if (!m_service) {
        return;
    }
    if (!isRunning()) {
        Q_EMIT batchStarted();
    }
    queue.append(transfers);
    if (m_downloads.isUnderWay()) {
        reportDownload();
    }
    startNext();
}

void TransferRunner::startNext() {
    if (m_downloads.isUnderWay() || m_uploads.isUnderWay() || !m_service) {
        return;
    }
    if (m_downloads.remaining() > 0) {
        startDownload();
        return;
    }
    if (m_downloads.isRunning()) {
        m_downloads.clear();
        Q_EMIT statusChanged(tr("All downloads complete."));
    }
    if (m_uploads.remaining() > 0) {
        startUpload();
    } else if (m_uploads.isRunning()) {
        m_uploads.clear();
        Q_EMIT statusChanged(tr("All uploads complete."));
        Q_EMIT uploadsComplete();
    }
}

void TransferRunner::startNextLater() {
    QMetaObject::invokeMethod(this, &TransferRunner::startNext, Qt::QueuedConnection);
}

void TransferRunner::startDownload() {
    m_downloads.startNext();
    reportDownload();
    Q_EMIT transferStarting();
    const FileTransfer transfer = m_downloads.current();
    m_service->requestDownload(transfer.remotePath, transfer.localPath);
}

void TransferRunner::startUpload() {
    m_uploads.startNext();
    reportCurrent(tr("Uploading %1 of %2: %3"), m_uploads);
    Q_EMIT transferStarting();
    const FileTransfer transfer = m_uploads.current();
    m_service->uploadFile(transfer.localPath, transfer.remotePath);
}

void TransferRunner::downloadComplete(const QString& localPath) {
    if (!m_downloads.isUnderWay() || m_downloads.current().localPath != localPath) {
        return;
    }
    m_downloads.finishCurrent();
    Q_EMIT statusChanged(tr("Downloaded: %1 — %2 remaining")
                             .arg(shownName(QFileInfo(localPath).fileName()),
                                  QString::number(m_downloads.remaining())));
    startNextLater();
}

void TransferRunner::uploadComplete() {
    if (m_uploads.isUnderWay()) {
        m_uploads.finishCurrent();
        Q_EMIT uploadEnded();
        startNextLater();
    }
}

void TransferRunner::requestFailed(const FileTransferError& error) {
    switch (error.kind) {
    case FileTransferError::Kind::Listing:
        break;
    case FileTransferError::Kind::RefusedUpload:
        m_uploads.clear();
        Q_EMIT uploadEnded();
        break;
    case FileTransferError::Kind::Download:
    case FileTransferError::Kind::Upload:
    case FileTransferError::Kind::Unknown:
        stop();
        Q_EMIT uploadEnded();
        break;
    }
}

void TransferRunner::stop() {
    m_downloads.clear();
    m_uploads.clear();
}

void TransferRunner::reportDownload() {
    reportCurrent(tr("Downloading %1 of %2: %3"), m_downloads);
}

void TransferRunner::reportCurrent(const QString& text, const TransferQueue& queue) {
    const QString name = QFileInfo(queue.current().localPath).fileName();
    Q_EMIT statusChanged(text.arg(QString::number(queue.ordinal()), QString::number(queue.total()),
                                  shownName(name)));
}

} // namespace corvane
