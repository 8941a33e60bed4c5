#include "services/AtomicFile.h"

#include "common/ByteViews.h"

#include <QFileInfo>

namespace corvane {

AtomicFile::AtomicFile(const QString& path) : m_file(path) {}

bool AtomicFile::open() {
    const QFileInfo existing(m_file.fileName());
    return (!existing.exists() || existing.isFile()) && m_file.open(QIODevice::WriteOnly);
}

bool AtomicFile::append(ByteSpan bytes) {
    const QByteArrayView data = viewOf(bytes);
    if (m_file.write(data.data(), data.size()) != data.size()) {
        m_failed = true;
    }
    return !m_failed;
}

bool AtomicFile::commit() {
    m_failed = m_failed || !m_file.flush();
    if (m_failed) {
        m_file.cancelWriting();
    }
    // A file written in place commits even after a failed write.
    return m_file.commit() && !m_failed;
}

bool writeAtomicFile(const QString& path, ByteSpan bytes) {
    AtomicFile file(path);
    file.allowInPlace();
    return file.open() && file.append(bytes) && file.commit();
}

} // namespace corvane
