#pragma once

#include <QString>

#include <optional>

namespace corvane {

/// Paths on the partner's machine, whose separators are not known here: both "/" and "\" count. The
/// empty path is the top level, where the partner lists its drives.

/// The path of the entry `name` in the folder `path`.
QString joinRemotePath(const QString& path, const QString& name);

/// The folder above; nothing above the top level.
std::optional<QString> parentRemotePath(const QString& path);

/// Whether a name that the partner sent is nothing but a file's name, so that a local folder and
/// the name make a path inside that folder.
bool isPlainFileName(const QString& name);

} // namespace corvane
