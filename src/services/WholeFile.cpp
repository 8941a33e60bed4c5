#include "WholeFile.h"

#include <QFileInfo>
#include <QSaveFile>

namespace corvane {

bool writeWholeFile(const QString& path, const std::function<bool(QIODevice& output)>& write) {
    const QFileInfo existing(path);
    if (existing.exists() && !existing.isFile()) {
        return false;
    }
    QSaveFile file(path);
    // In a folder that takes no further file, one that is there may still be writable.
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    const bool written = write(file) && file.flush();
    if (!written) {
        file.cancelWriting();
    }
    // Where the file is written in place, committing does not look back at what failed.
    return file.commit() && written;
}

bool writeAll(QIODevice& output, ByteSpan bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    return output.write(reinterpret_cast<const char*>(bytes.data()), size) == size;
}

bool copyAll(QIODevice& input, QIODevice& output) {
    constexpr qint64 kPieceSize = 1024 * 1024;
    ByteVector piece(kPieceSize);
    qint64 count = 0;
    while ((count = input.read(reinterpret_cast<char*>(piece.data()), kPieceSize)) > 0) {
        if (!writeAll(output, ByteSpan(piece).first(static_cast<size_t>(count)))) {
            return false;
        }
    }
    return count == 0;
}

} // namespace corvane
