#include "services/WholeFile.h"

#include "common/ByteViews.h"

#include <QFileInfo>

namespace corvane {

WholeFile::WholeFile(const QString& path) : m_file(path) {}

bool WholeFile::open() {
    const QFileInfo existing(m_file.fileName());
    return (!existing.exists() || existing.isFile()) && m_file.open(QIODevice::WriteOnly);
}

bool WholeFile::append(ByteSpan bytes) {
    const QByteArrayView data = viewOf(bytes);
    if (m_file.write(data.data(), data.size()) != data.size()) {
        m_failed = true;
    }
    return !m_failed;
}

bool WholeFile::commit() {
    m_failed = m_failed || !m_file.flush();
    if (m_failed) {
        m_file.cancelWriting();
    }
    // Written in place, a file commits whatever has failed.
    return m_file.commit() && !m_failed;
}

bool writeWholeFile(const QString& path, ByteSpan bytes) {
    WholeFile file(path);
    file.allowInPlace();
    return file.open() && file.append(bytes) && file.commit();
}

} // namespace corvane
