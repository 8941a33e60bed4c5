#pragma once

#include "ByteVector.h"

#include <QString>

#include <functional>

class QIODevice;

namespace corvane {

/// Creates or replaces the file at `path` with what `write` writes, which answers whether all went
/// well. False when anything failed: a file that was there before is then still as it was, unless
/// its folder takes no further file, where it can only be written in place. Replaces ordinary files
/// only, never a device or a pipe.
bool writeWholeFile(const QString& path, const std::function<bool(QIODevice& output)>& write);

/// False when not everything was taken.
bool writeAll(QIODevice& output, ByteSpan bytes);

/// The rest of `input`. False when reading or writing failed.
bool copyAll(QIODevice& input, QIODevice& output);

} // namespace corvane
