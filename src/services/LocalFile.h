#pragma once

#include "common/LoggableText.h"

#include <QFile>
#include <QFileInfo>
#include <QString>

#include <string>

namespace corvane {

/// A path with names from the peer, or a text of its, for a log line, cut at the longest path that
/// file systems accept.
inline std::string loggablePath(const QString& path) {
    constexpr size_t kMaxPath = 4096;
    return loggableText(path.toStdString(), kMaxPath);
}

/// Devices and pipes are refused: reading one may never end.
inline bool openOrdinaryFile(QFile& file) {
    return QFileInfo(file.fileName()).isFile() && file.open(QIODevice::ReadOnly);
}

} // namespace corvane
