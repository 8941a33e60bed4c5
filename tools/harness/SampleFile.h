#pragma once

#include <QString>

namespace corvane::harness {

/// Writes `size` random bytes. False when not all of them could be written.
bool writeSampleFile(const QString& path, qint64 size);

/// SHA-256 in hexadecimal digits; empty if there is no file.
QString checksum(const QString& path);

} // namespace corvane::harness
