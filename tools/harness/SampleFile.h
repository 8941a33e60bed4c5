#pragma once

#include <QString>

namespace corvane::harness {

/// Writes `size` random bytes. False when they do not all get there.
bool writeSampleFile(const QString& path, qint64 size);

/// SHA-256 in hexadecimal digits; empty where there is no file.
QString checksum(const QString& path);

} // namespace corvane::harness
