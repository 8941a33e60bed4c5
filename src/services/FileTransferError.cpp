#include "services/FileTransferError.h"

#include "services/FileMessage.h"

#include <algorithm>

namespace corvane {

FileTransferError partnerError(const QString& text, const QStringList& listings,
                               const std::optional<QString>& download) {
    using Kind = FileTransferError::Kind;
    const auto listing = std::ranges::find_if(
        listings, [&](const QString& path) { return text.endsWith(u' ' + path); });
    if (listing != listings.end()) {
        return {Kind::Listing, *listing, text};
    }
    if (text.startsWith(kUploadRefused)) {
        return {Kind::RefusedUpload, text.sliced(kUploadRefused.size()), text};
    }
    if (download && text.endsWith(*download)) {
        return {Kind::Download, *download, text};
    }
    return {Kind::Unknown, {}, text};
}

} // namespace corvane
