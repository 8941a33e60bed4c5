#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace corvane {

/// A failed request: one of this side's, or an upload that the partner could not save.
struct FileTransferError {
    enum class Kind {
        Listing,       ///< of the remote folder `path`
        Download,      ///< of the remote file `path`
        Upload,        ///< of the local file `path`, which was not sent completely
        RefusedUpload, ///< sent, but not written as the remote file `path`
        Unknown,       ///< the partner's error matches none of the open requests
    };

    Kind kind = Kind::Unknown;
    QString path;
    QString text; ///< for the user
};

/// Tells which request an error of the partner's belongs to. The error is readable text that ends
/// with a path, so it is matched against the unanswered requests: the folders in `listings` and the
/// file `download`.
FileTransferError partnerError(const QString& text, const QStringList& listings,
                               const std::optional<QString>& download);

} // namespace corvane
