#pragma once

#include "services/FileEntry.h"
#include "services/FileTransferError.h"
#include "services/SendFunction.h"
#include "services/UploadSpool.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class QFile;

namespace corvane {

/// Browses the peer's file system and moves files either way; also answers the peer that does the
/// same. One download and one upload at a time in each direction. Main thread.
///
/// Paths go to the peer as they are. A received file is written, or replaced, in one go, once its
/// transfer has ended; what the sender announced but did not send is missing from it.
class FileTransferService : public QObject {
    Q_OBJECT

public:
    /// Blocks until the way out is clear enough for another block; false when it never will be.
    using PacingFunction = std::function<bool()>;

    /// `send` may be empty: messages then go nowhere. `maxMessageSize`: bytes that `send` takes
    /// at most.
    FileTransferService(SendFunction send, qint64 maxMessageSize, QObject* parent = nullptr);
    ~FileTransferService() override;

    /// Asked before every block of an upload, so that a large file is not read into the send queue
    /// at once. Received messages may be handled inside.
    void setPacing(PacingFunction pacing) { m_pacing = std::move(pacing); }

    /// The answer arrives as `directoryListed`. An empty path asks for the volumes.
    void requestListing(const QString& remotePath);

    /// The file arrives in one message and is written to `localPath`. A new request replaces the
    /// one before it, whose answer, if it still comes, goes where the new one's then does.
    void requestDownload(const QString& remotePath, const QString& localPath);

    /// Sends the whole file before it returns; the event loop does not run meanwhile. The bytes are
    /// those the file has when it is opened: what is appended later is not sent.
    void uploadFile(const QString& localPath, const QString& remotePath);

    /// One received message, without the control channel's tag; logged and dropped when malformed.
    void handleMessage(ByteSpan payload);

Q_SIGNALS:
    void directoryListed(QString path, QList<corvane::FileEntry> entries);
    void fileDownloadProgress(QString remotePath, int percent);
    void fileDownloadComplete(QString localPath);
    void fileUploadProgress(QString remotePath, int percent);
    void fileUploadComplete();
    /// For the user. Ends whatever the text is about.
    void fileError(QString error);
    void transferStats(qint64 bytesTransferred, int bytesPerSec, int etaSeconds);
    /// What the `fileError` that follows at once is about.
    void requestFailed(corvane::FileTransferError error);

private:
    struct Download {
        QString remotePath;
        QString localPath;
    };

    void onListingRequest(ByteSpan body);
    void onListingResponse(ByteSpan body);
    void onDownloadRequest(ByteSpan body);
    void onDownloadResponse(ByteSpan body);
    void onUploadStart(ByteSpan body);
    void onUploadChunk(ByteSpan body);
    void onUploadEnd(ByteSpan body);
    void onError(ByteSpan body);

    void fail(const FileTransferError& error);
    bool send(const ByteVector& message) const;
    void sendError(const QString& text) const;
    QString sendFile(QFile& file, const QString& remotePath);
    void reportProgress(const QString& remotePath, qint64 sent, qint64 size, qint64 startedAt);

    const SendFunction m_send;
    const qint64 m_maxMessageSize;
    PacingFunction m_pacing;
    bool m_uploading = false;
    QStringList m_expectedListings;          ///< asked for and not yet answered
    Download m_download;                     ///< the one last asked for
    int m_expectedDownloads = 0;             ///< asked for and not yet answered
    std::unique_ptr<UploadSpool> m_incoming; ///< the peer's upload to this machine
    bool m_strayChunkLogged = false;
};

} // namespace corvane
