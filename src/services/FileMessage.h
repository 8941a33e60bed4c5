#pragma once

#include "common/ByteReader.h"
#include "common/ByteVector.h"
#include "services/FileEntry.h"

#include <QList>
#include <QString>

#include <optional>

namespace corvane {

/// First byte of a file-transfer message. A text or path is its length in bytes (u32), then UTF-8.
enum class FileMessageType : uint8_t {
    ListingRequest = 0x01,   ///< path
    ListingResponse = 0x02,  ///< path, u32 count, entries of u8 is-directory, u64 size, name
    DownloadRequest = 0x03,  ///< path
    DownloadResponse = 0x04, ///< u8 status (0: success), u64 size, content
    UploadStart = 0x05,      ///< path, u64 size
    UploadChunk = 0x06,      ///< u32 offset, content
    UploadEnd = 0x07,        ///< path
    Error = 0x08,            ///< text
};

/// Begins the error that a peer sends when it could not save an upload; the destination follows.
inline const QString kUploadRefused = QStringLiteral("Cannot write file: ");

struct DirectoryListing {
    QString path;
    QList<FileEntry> entries;
};

struct UploadAnnouncement {
    QString path;
    quint64 size = 0;
};

/// A message whose body is one path or text.
ByteVector fileTextMessage(FileMessageType type, const QString& text);

ByteVector listingResponse(const DirectoryListing& listing);
ByteVector downloadResponse(ByteSpan content);
ByteVector uploadStart(const UploadAnnouncement& announcement);

/// The offset wraps at 4 GiB: receivers append in order of arrival.
ByteVector uploadChunk(qint64 offset, ByteSpan content);

/// Bytes of a download response besides the content, type included.
constexpr qint64 kDownloadResponseOverhead = 1 + 1 + 8;

/// The path or text at the reader's position; no value when its length exceeds the data.
std::optional<QString> readFileText(ByteReader& reader);

/// When the data ends before the announced count is reached, keeps the entries that are complete.
/// No value when the path or the count is missing.
std::optional<DirectoryListing> parseListingResponse(ByteSpan body);

std::optional<UploadAnnouncement> parseUploadStart(ByteSpan body);

} // namespace corvane
