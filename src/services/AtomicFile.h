#pragma once

#include "common/ByteVector.h"

#include <QSaveFile>
#include <QString>

namespace corvane {

/// Creates or replaces the file at a path in one go: what is appended shows there with `commit`
/// only, and never without. Replaces ordinary files only, never a device or a pipe.
class AtomicFile {
public:
    explicit AtomicFile(const QString& path);

    /// In a folder that takes no further file, one that is there may still be writable: this lets
    /// it be written in place, where a failure on the way leaves it damaged. Before `open`.
    void allowInPlace() { m_file.setDirectWriteFallback(true); }

    bool open();

    /// False when not everything was taken; `commit` then fails as well.
    bool append(ByteSpan bytes);

    /// False when anything failed since `open`.
    bool commit();

private:
    QSaveFile m_file;
    bool m_failed = false;
};

/// The same for bytes that are at hand, in place if it must be.
bool writeAtomicFile(const QString& path, ByteSpan bytes);

} // namespace corvane
