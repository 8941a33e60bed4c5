#pragma once

#include "services/FileEntry.h"
#include "services/FileTransferError.h"
#include "services/OutgoingUpload.h"
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

/// Browses the peer's file system and transfers files in both directions; also serves the peer's
/// own requests. Each side has at most one download and one upload under way. Main thread.
///
/// Paths are sent to the peer unchanged. A received file is created or replaced atomically once its
/// transfer has ended; it is shorter than announced if the sender sent less.
class FileTransferService : public QObject {
    Q_OBJECT

public:
    /// `send` may be empty; messages are then dropped. `maxMessageSize` is the max size, in bytes,
    /// of a message that `send` accepts.
    FileTransferService(SendFunction send, qint64 maxMessageSize, QObject* parent = nullptr);
    ~FileTransferService() override;

    /// Asked before every block of an upload whether the connection has room for it, so that a
    /// large file does not fill the send queue.
    void setRoom(OutgoingUpload::RoomFunction room) { m_room = std::move(room); }

    /// The answer arrives as `directoryListed`. An empty path asks for the volumes.
    void requestListing(const QString& remotePath);

    /// The file arrives in one message and is written to `localPath`. A new request replaces the
    /// previous one; if that is still answered, its file goes to the new `localPath` as well.
    void requestDownload(const QString& remotePath, const QString& localPath);

    /// Sends the file while the event loop runs; a small one is sent before this returns. The size
    /// is taken when the file is opened: anything appended later is not sent.
    void uploadFile(const QString& localPath, const QString& remotePath);

    /// Abandons the upload under way, if there is one, without a signal. The peer keeps nothing of
    /// it.
    void cancelUpload();

    /// One received message, without the control channel's tag; logged and dropped when malformed.
    void handleMessage(ByteSpan payload);

Q_SIGNALS:
    void directoryListed(QString path, QList<corvane::FileEntry> entries);
    void fileDownloadProgress(QString remotePath, int percent);
    void fileDownloadComplete(QString localPath);
    void fileUploadProgress(QString remotePath, int percent);
    void fileUploadComplete();
    /// For the user. The request that the text is about has ended.
    void fileError(QString error);
    void transferStats(qint64 bytesTransferred, int bytesPerSec, int etaSeconds);
    /// Says which request the `fileError` emitted right after it is about.
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
    void onUploadFailed(OutgoingUpload::Failure failure);
    void endUpload();

    const SendFunction m_send;
    const qint64 m_maxMessageSize;
    OutgoingUpload::RoomFunction m_room;
    std::unique_ptr<OutgoingUpload> m_outgoing; ///< null while no upload is under way
    QStringList m_expectedListings;             ///< not yet answered
    Download m_download;                        ///< the latest one requested
    int m_expectedDownloads = 0;                ///< not yet answered
    std::unique_ptr<UploadSpool> m_incoming;    ///< the peer's upload to this machine
    bool m_strayChunkLogged = false;
};

} // namespace corvane
