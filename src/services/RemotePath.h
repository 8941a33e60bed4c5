#pragma once

#include <QString>

#include <optional>

namespace corvane {

/// Paths on the partner's machine, whose separator is not known here, so both "/" and "\" count.
/// The empty path is the top level, where the partner lists its drives.

/// The path of the entry `name` in the folder `path`.
QString joinRemotePath(const QString& path, const QString& name);

/// The parent folder; no value for the top level.
std::optional<QString> parentRemotePath(const QString& path);

/// Whether a name sent by the partner is a plain file name, so that appending it to a local folder
/// gives a path inside that folder.
bool isPlainFileName(const QString& name);

} // namespace corvane
