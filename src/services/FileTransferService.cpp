#include "services/FileTransferService.h"

#include "common/ByteViews.h"
#include "services/AtomicFile.h"
#include "services/FileMessage.h"
#include "services/LocalFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStorageInfo>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

using ErrorKind = FileTransferError::Kind;

QList<FileEntry> mountedVolumes() {
    const auto capacityOf = [](const QStorageInfo& volume) {
        return static_cast<quint64>(std::max<qint64>(volume.bytesTotal(), 0));
    };
    QList<FileEntry> volumes;
    for (const QStorageInfo& volume : QStorageInfo::mountedVolumes()) {
        volumes.append({volume.rootPath(), true, capacityOf(volume)});
    }
    // In a container the root may be a folder of a volume that is mounted outside.
    const QString root = QDir::rootPath();
    if (std::ranges::find(volumes, root, &FileEntry::name) == volumes.end()) {
        volumes.prepend({root, true, capacityOf(QStorageInfo(root))});
    }
    return volumes;
}

QList<FileEntry> entriesOf(const QDir& directory) {
    const auto infos = directory.entryInfoList(QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot,
                                               QDir::DirsFirst | QDir::Name | QDir::IgnoreCase);
    QList<FileEntry> entries;
    entries.reserve(infos.size());
    for (const QFileInfo& info : infos) {
        const bool isDirectory = info.isDir();
        entries.append(
            {info.fileName(), isDirectory, isDirectory ? 0 : static_cast<quint64>(info.size())});
    }
    return entries;
}

void logMalformed(FileMessageType type) {
    spdlog::warn("FileTransfer: malformed message 0x{:02x}", static_cast<uint8_t>(type));
}

/// The only path or text of a message; no value, with a log line, when it is truncated.
std::optional<QString> bodyText(FileMessageType type, ByteSpan body) {
    ByteReader reader(body);
    const auto text = readFileText(reader);
    if (!text) {
        logMalformed(type);
    }
    return text;
}

} // namespace

FileTransferService::FileTransferService(SendFunction send, qint64 maxMessageSize, QObject* parent)
    : QObject(parent), m_send(std::move(send)), m_maxMessageSize(maxMessageSize) {}

FileTransferService::~FileTransferService() = default;

void FileTransferService::requestListing(const QString& remotePath) {
    spdlog::info("FileTransfer: requested listing for '{}'", loggablePath(remotePath));
    m_expectedListings.append(remotePath);
    if (!send(fileTextMessage(FileMessageType::ListingRequest, remotePath))) {
        m_expectedListings.removeOne(remotePath);
        fail({ErrorKind::Listing, remotePath,
              tr("The request could not be sent: %1").arg(remotePath)});
    }
}

void FileTransferService::requestDownload(const QString& remotePath, const QString& localPath) {
    spdlog::info("FileTransfer: requested download of '{}'", loggablePath(remotePath));
    const Download replaced = std::exchange(m_download, {remotePath, localPath});
    ++m_expectedDownloads;
    if (!send(fileTextMessage(FileMessageType::DownloadRequest, remotePath))) {
        m_download = replaced;
        --m_expectedDownloads;
        fail({ErrorKind::Download, remotePath,
              tr("The request could not be sent: %1").arg(remotePath)});
    }
}

void FileTransferService::uploadFile(const QString& localPath, const QString& remotePath) {
    if (m_outgoing) {
        fail({ErrorKind::Upload, localPath,
              tr("Another upload is still running: %1").arg(localPath)});
        return;
    }
    auto upload = std::make_unique<OutgoingUpload>(
        localPath, remotePath, [this](const ByteVector& message) { return send(message); }, m_room);
    if (!upload->open()) {
        fail({ErrorKind::Upload, localPath, tr("Cannot open local file: %1").arg(localPath)});
        return;
    }
    connect(upload.get(), &OutgoingUpload::progressed, this,
            [this, remotePath](int percent) { Q_EMIT fileUploadProgress(remotePath, percent); });
    connect(upload.get(), &OutgoingUpload::transferred, this, &FileTransferService::transferStats);
    connect(upload.get(), &OutgoingUpload::finished, this, [this] {
        endUpload();
        Q_EMIT fileUploadComplete();
    });
    connect(upload.get(), &OutgoingUpload::failed, this, &FileTransferService::onUploadFailed);
    m_outgoing = std::move(upload);
    m_outgoing->start();
}

void FileTransferService::cancelUpload() {
    if (m_outgoing) {
        spdlog::info("FileTransfer: upload of '{}' cancelled",
                     loggablePath(m_outgoing->localPath()));
        endUpload();
    }
}

void FileTransferService::onUploadFailed(OutgoingUpload::Failure failure) {
    const QString path = m_outgoing->localPath();
    spdlog::warn("FileTransfer: upload of '{}' failed", loggablePath(path));
    endUpload();
    fail({ErrorKind::Upload, path,
          failure == OutgoingUpload::Failure::ConnectionLost
              ? tr("The connection was lost while sending: %1").arg(path)
              : tr("Cannot read local file: %1").arg(path)});
}

/// May be called from one of the upload's own signals.
void FileTransferService::endUpload() {
    m_outgoing->disconnect(this);
    m_outgoing->stop();
    m_outgoing.release()->deleteLater();
}

void FileTransferService::handleMessage(ByteSpan payload) {
    using Handler = void (FileTransferService::*)(ByteSpan body);
    static constexpr std::array<Handler, 9> kHandlers{
        nullptr,
        &FileTransferService::onListingRequest,
        &FileTransferService::onListingResponse,
        &FileTransferService::onDownloadRequest,
        &FileTransferService::onDownloadResponse,
        &FileTransferService::onUploadStart,
        &FileTransferService::onUploadChunk,
        &FileTransferService::onUploadEnd,
        &FileTransferService::onError,
    };
    if (payload.empty()) {
        return;
    }
    const uint8_t type = payload.front();
    if (type == 0 || type >= kHandlers.size()) {
        spdlog::warn("FileTransfer: unknown sub-type 0x{:02x}", type);
        return;
    }
    (this->*kHandlers[type])(payload.subspan(1));
}

void FileTransferService::onListingRequest(ByteSpan body) {
    const auto path = bodyText(FileMessageType::ListingRequest, body);
    if (!path) {
        return;
    }
    spdlog::info("FileTransfer: listing directory '{}'", loggablePath(*path));
    // A bare Windows drive would mean this program's current folder there, not the drive's root.
    const QDir directory(path->endsWith(u':') ? *path + u'/' : *path);
    if (!path->isEmpty() && !directory.exists()) {
        sendError(QStringLiteral("Directory does not exist: ") + *path);
        return;
    }
    const ByteVector response =
        listingResponse({*path, path->isEmpty() ? mountedVolumes() : entriesOf(directory)});
    if (static_cast<qint64>(response.size()) > m_maxMessageSize) {
        sendError(QStringLiteral("Directory has too many entries to list: ") + *path);
        return;
    }
    send(response);
}

void FileTransferService::onListingResponse(ByteSpan body) {
    const auto listing = parseListingResponse(body);
    if (!listing) {
        logMalformed(FileMessageType::ListingResponse);
        return;
    }
    spdlog::info("FileTransfer: received listing for '{}' ({} entries)",
                 loggablePath(listing->path), listing->entries.size());
    m_expectedListings.removeOne(listing->path);
    Q_EMIT directoryListed(listing->path, listing->entries);
}

void FileTransferService::onDownloadRequest(ByteSpan body) {
    const auto path = bodyText(FileMessageType::DownloadRequest, body);
    if (!path) {
        return;
    }
    spdlog::info("FileTransfer: serving download request for '{}'", loggablePath(*path));
    QFile file(*path);
    if (!openOrdinaryFile(file)) {
        sendError(QStringLiteral("Cannot open file: ") + *path);
        return;
    }
    const qint64 room = m_maxMessageSize - kDownloadResponseOverhead;
    // The size may have changed by the time the file is read, so ask for one byte more than fits.
    const QByteArray content = file.size() > room ? QByteArray() : file.read(room + 1);
    if (file.size() > room || content.size() > room) {
        sendError(QStringLiteral("File is too large to download: ") + *path);
        return;
    }
    if (file.error() != QFileDevice::NoError) {
        sendError(QStringLiteral("Cannot read file: ") + *path);
        return;
    }
    send(downloadResponse(bytesOf(content)));
}

void FileTransferService::onDownloadResponse(ByteSpan body) {
    if (m_expectedDownloads == 0) {
        spdlog::warn("FileTransfer: dropping a download response that was not asked for");
        return;
    }
    ByteReader reader(body);
    const auto status = reader.integer<uint8_t>();
    if (status && *status != 0) {
        --m_expectedDownloads;
        fail({ErrorKind::Download, m_download.remotePath, tr("Remote file download failed")});
        return;
    }
    const auto announced = reader.integer<uint64_t>();
    if (!status || !announced) {
        logMalformed(FileMessageType::DownloadResponse);
        return;
    }
    if (reader.remaining() < *announced) {
        spdlog::warn("FileTransfer: download response truncated ({} < {})", reader.remaining(),
                     *announced);
    }
    const ByteSpan content =
        *reader.bytes(static_cast<size_t>(std::min<uint64_t>(reader.remaining(), *announced)));
    --m_expectedDownloads;
    const Download download = m_download;
    if (!writeAtomicFile(download.localPath, content)) {
        fail({ErrorKind::Download, download.remotePath,
              tr("Cannot write to local file: %1").arg(download.localPath)});
        return;
    }
    spdlog::info("FileTransfer: download complete -> '{}'", loggablePath(download.localPath));
    Q_EMIT fileDownloadProgress(download.remotePath, 100);
    Q_EMIT fileDownloadComplete(download.localPath);
}

void FileTransferService::onUploadStart(ByteSpan body) {
    const auto announcement = parseUploadStart(body);
    if (!announcement) {
        logMalformed(FileMessageType::UploadStart);
        return;
    }
    spdlog::info("FileTransfer: receiving upload '{}' ({} bytes)", loggablePath(announcement->path),
                 announcement->size);
    m_incoming = std::make_unique<UploadSpool>(announcement->path, announcement->size);
    m_strayChunkLogged = false;
}

void FileTransferService::onUploadChunk(ByteSpan body) {
    ByteReader reader(body);
    if (!reader.integer<uint32_t>()) {
        logMalformed(FileMessageType::UploadChunk);
        return;
    }
    if (m_incoming && m_incoming->append(*reader.bytes(reader.remaining()))) {
        return;
    }
    if (!std::exchange(m_strayChunkLogged, true)) {
        spdlog::warn(m_incoming ? "FileTransfer: dropping upload data beyond the announced size"
                                : "FileTransfer: dropping upload data without an upload");
    }
}

void FileTransferService::onUploadEnd(ByteSpan) {
    if (!m_incoming) {
        spdlog::warn("FileTransfer: dropping the end of an upload that was not started");
        return;
    }
    const auto upload = std::exchange(m_incoming, nullptr);
    m_strayChunkLogged = false;
    if (upload->receivedSize() < upload->announcedSize()) {
        spdlog::warn("FileTransfer: upload truncated ({} < {})", upload->receivedSize(),
                     upload->announcedSize());
    }
    if (!upload->commit()) {
        sendError(kUploadRefused + upload->destination());
        return;
    }
    spdlog::info("FileTransfer: received upload -> '{}' ({} bytes)",
                 loggablePath(upload->destination()), upload->receivedSize());
}

void FileTransferService::onError(ByteSpan body) {
    ByteReader reader(body);
    const QString text = readFileText(reader).value_or(QString());
    spdlog::warn("FileTransfer: remote error: {}", loggablePath(text));
    const FileTransferError error =
        partnerError(text, m_expectedListings,
                     m_expectedDownloads > 0 ? std::optional(m_download.remotePath) : std::nullopt);
    if (error.kind == ErrorKind::Listing) {
        m_expectedListings.removeOne(error.path);
    } else if (error.kind == ErrorKind::Download) {
        // The peer answers in order: once it refuses the last download, no more answers are due.
        m_expectedDownloads = 0;
    }
    fail(error);
}

void FileTransferService::fail(const FileTransferError& error) {
    Q_EMIT requestFailed(error);
    Q_EMIT fileError(error.text);
}

bool FileTransferService::send(const ByteVector& message) const {
    return !m_send || m_send(message);
}

void FileTransferService::sendError(const QString& text) const {
    send(fileTextMessage(FileMessageType::Error, text));
}

} // namespace corvane
