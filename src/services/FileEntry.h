#pragma once

#include <QMetaType>
#include <QString>

namespace corvane {

/// One line of a directory listing.
struct FileEntry {
    QString name; ///< as sent by the peer, unchecked: not safe as part of a local path
    bool isDirectory = false;
    quint64 size = 0; ///< bytes; 0 for a directory, the capacity for a volume

    bool operator==(const FileEntry&) const = default;
};

} // namespace corvane

Q_DECLARE_METATYPE(corvane::FileEntry)
