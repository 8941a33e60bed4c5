#pragma once

#include "common/ByteVector.h"

#include <QSaveFile>
#include <QString>

namespace corvane {

/// Creates or replaces the file at a path atomically: what is appended appears there on `commit`,
/// and not at all without it. Replaces ordinary files only, never a device or a pipe.
class AtomicFile {
public:
    explicit AtomicFile(const QString& path);

    /// Lets an existing file be written in place where its folder accepts no new file; a failure
    /// part-way then leaves it damaged. Call before `open`.
    void allowInPlace() { m_file.setDirectWriteFallback(true); }

    bool open();

    /// False when not all bytes were written; `commit` then fails as well.
    bool append(ByteSpan bytes);

    /// False when anything failed since `open`.
    bool commit();

private:
    QSaveFile m_file;
    bool m_failed = false;
};

/// Writes a whole file in the same way, in place if necessary.
bool writeAtomicFile(const QString& path, ByteSpan bytes);

} // namespace corvane
