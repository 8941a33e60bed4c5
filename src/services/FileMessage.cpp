#include "services/FileMessage.h"

#include "common/ByteViews.h"
#include "common/ByteWriter.h"

namespace corvane {

namespace {

constexpr size_t kLengthSize = 4;

class FileMessageWriter : public ByteWriter {
public:
    FileMessageWriter(FileMessageType type, size_t bodySize) : ByteWriter(1 + bodySize) {
        integer(static_cast<uint8_t>(type));
    }

    void text(const QByteArray& utf8) {
        integer(static_cast<uint32_t>(utf8.size()));
        bytes(bytesOf(utf8));
    }
};

std::optional<FileEntry> readEntry(ByteReader& reader) {
    const auto isDirectory = reader.integer<uint8_t>();
    const auto size = reader.integer<uint64_t>();
    const auto name = readFileText(reader);
    if (!isDirectory || !size || !name) {
        return std::nullopt;
    }
    return FileEntry{*name, *isDirectory != 0, *size};
}

} // namespace

ByteVector fileTextMessage(FileMessageType type, const QString& text) {
    const QByteArray utf8 = text.toUtf8();
    FileMessageWriter writer(type, kLengthSize + static_cast<size_t>(utf8.size()));
    writer.text(utf8);
    return writer.take();
}

ByteVector listingResponse(const DirectoryListing& listing) {
    FileMessageWriter writer(FileMessageType::ListingResponse, 0);
    writer.text(listing.path.toUtf8());
    writer.integer(static_cast<uint32_t>(listing.entries.size()));
    for (const FileEntry& entry : listing.entries) {
        writer.integer(static_cast<uint8_t>(entry.isDirectory ? 1 : 0));
        writer.integer(static_cast<uint64_t>(entry.size));
        writer.text(entry.name.toUtf8());
    }
    return writer.take();
}

ByteVector downloadResponse(ByteSpan content) {
    FileMessageWriter writer(FileMessageType::DownloadResponse,
                             kDownloadResponseOverhead - 1 + content.size());
    writer.integer(uint8_t{0});
    writer.integer(static_cast<uint64_t>(content.size()));
    writer.bytes(content);
    return writer.take();
}

ByteVector uploadStart(const UploadAnnouncement& announcement) {
    const QByteArray path = announcement.path.toUtf8();
    FileMessageWriter writer(FileMessageType::UploadStart,
                             kLengthSize + static_cast<size_t>(path.size()) + sizeof(uint64_t));
    writer.text(path);
    writer.integer(static_cast<uint64_t>(announcement.size));
    return writer.take();
}

ByteVector uploadChunk(qint64 offset, ByteSpan content) {
    FileMessageWriter writer(FileMessageType::UploadChunk, sizeof(uint32_t) + content.size());
    writer.integer(static_cast<uint32_t>(offset));
    writer.bytes(content);
    return writer.take();
}

std::optional<QString> readFileText(ByteReader& reader) {
    const auto length = reader.integer<uint32_t>();
    const auto text = length ? reader.bytes(*length) : std::nullopt;
    if (!text) {
        return std::nullopt;
    }
    return QString::fromUtf8(viewOf(*text));
}

std::optional<DirectoryListing> parseListingResponse(ByteSpan body) {
    ByteReader reader(body);
    const auto path = readFileText(reader);
    const auto count = reader.integer<uint32_t>();
    if (!path || !count) {
        return std::nullopt;
    }
    DirectoryListing listing{*path, {}};
    for (uint32_t i = 0; i < *count; ++i) {
        const auto entry = readEntry(reader);
        if (!entry) {
            break;
        }
        listing.entries.append(*entry);
    }
    return listing;
}

std::optional<UploadAnnouncement> parseUploadStart(ByteSpan body) {
    ByteReader reader(body);
    const auto path = readFileText(reader);
    const auto size = reader.integer<uint64_t>();
    if (!path || !size) {
        return std::nullopt;
    }
    return UploadAnnouncement{*path, *size};
}

} // namespace corvane
