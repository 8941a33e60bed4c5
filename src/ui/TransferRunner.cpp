#include "TransferRunner.h"

#include "FileTransferService.h"
#include "ShownNames.h"

#include <QFileInfo>

namespace corvane {

TransferRunner::TransferRunner(FileTransferService* service, QObject* parent)
    : QObject(parent), m_service(service) {}

bool TransferRunner::hasService() const {
    return m_service != nullptr;
}

void TransferRunner::list(const QString& remotePath) {
    if (m_service) {
        m_unanswered.append(Request::Listing);
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
    m_unanswered.append(Request::Download);
    m_service->requestDownload(transfer.remotePath, transfer.localPath);
}

void TransferRunner::startUpload() {
    m_uploads.startNext();
    reportCurrent(tr("Uploading %1 of %2: %3"), m_uploads);
    Q_EMIT transferStarting();
    const FileTransfer transfer = m_uploads.current();
    const QPointer<TransferRunner> self(this);
    m_service->uploadFile(transfer.localPath, transfer.remotePath);
    if (!self) {
        return;
    }
    Q_EMIT uploadEnded();
    if (m_uploads.isUnderWay()) {
        stop();
    }
}

void TransferRunner::folderListed() {
    m_unanswered.removeOne(Request::Listing);
}

void TransferRunner::downloadComplete(const QString& localPath) {
    // The partner answers in order: whatever was asked for before has been answered, too.
    m_unanswered.remove(0, m_unanswered.indexOf(Request::Download) + 1);
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
        startNextLater();
    }
}

void TransferRunner::transferFailed() {
    const bool isListing = !m_unanswered.isEmpty() && m_unanswered.takeFirst() == Request::Listing;
    if (!isListing || m_uploads.isUnderWay()) {
        stop();
    }
}

void TransferRunner::stop() {
    m_downloads.clear();
    m_uploads.clear();
    m_unanswered.removeAll(Request::Download);
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
