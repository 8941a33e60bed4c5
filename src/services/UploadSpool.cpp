#include "services/UploadSpool.h"

#include "services/AtomicFile.h"

#include <QDir>

#include <algorithm>
#include <utility>

namespace corvane {

UploadSpool::UploadSpool(QString destination, quint64 announcedSize, size_t memoryLimit)
    : m_destination(std::move(destination)), m_announcedSize(announcedSize),
      m_memoryLimit(memoryLimit),
      // A peer viewing the list of volumes names no folder; it does not mean this program's own.
      m_failed(QDir::isRelativePath(m_destination)) {
    m_memory.reserve(std::min<quint64>(announcedSize, m_memoryLimit));
}

UploadSpool::~UploadSpool() = default;

bool UploadSpool::append(ByteSpan chunk) {
    const ByteSpan taken =
        chunk.first(std::min<quint64>(chunk.size(), m_announcedSize - m_receivedSize));
    m_receivedSize += taken.size();
    if (!m_failed && !keep(taken)) {
        m_failed = true;
        m_memory = {};
        m_file.reset();
    }
    return taken.size() == chunk.size();
}

bool UploadSpool::commit() {
    if (m_failed) {
        return false;
    }
    return m_file ? m_file->commit() : writeAtomicFile(m_destination, m_memory);
}

bool UploadSpool::keep(ByteSpan chunk) {
    if (!m_file) {
        if (chunk.size() <= m_memoryLimit - m_memory.size()) {
            appendBytes(m_memory, chunk);
            return true;
        }
        m_file = std::make_unique<AtomicFile>(m_destination);
        if (!m_file->open() || !m_file->append(std::exchange(m_memory, {}))) {
            return false;
        }
    }
    return m_file->append(chunk);
}

} // namespace corvane
