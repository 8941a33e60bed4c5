#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace corvane {

/// A request that came to nothing: one of this side's, or an upload that the partner did not keep.
struct FileTransferError {
    enum class Kind {
        Listing,       ///< of the remote folder `path`
        Download,      ///< of the remote file `path`
        Upload,        ///< of the local file `path`, which was not sent to its end
        RefusedUpload, ///< sent, but not written as the remote file `path`
        Unknown,       ///< the partner names nothing it was asked for
    };

    Kind kind = Kind::Unknown;
    QString path;
    QString text; ///< for the user
};

/// What an error of the partner's is about. It comes as a text for people that ends with a path, so
/// it takes what was asked for and is not answered yet to tell: the folders in `listings` and the
/// file `download`.
FileTransferError partnerError(const QString& text, const QStringList& listings,
                               const std::optional<QString>& download);

} // namespace corvane
