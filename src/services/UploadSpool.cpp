#include "UploadSpool.h"

#include "WholeFile.h"

#include <QTemporaryFile>

#include <algorithm>
#include <utility>

namespace corvane {

UploadSpool::UploadSpool(QString destination, quint64 announcedSize, size_t memoryLimit)
    : m_destination(std::move(destination)), m_announcedSize(announcedSize),
      m_memoryLimit(memoryLimit) {
    m_memory.reserve(std::min<quint64>(announcedSize, m_memoryLimit));
}

UploadSpool::~UploadSpool() = default;

bool UploadSpool::append(ByteSpan chunk) {
    if (chunk.size() > m_announcedSize - m_receivedSize) {
        return false;
    }
    m_receivedSize += chunk.size();
    if (m_failed) {
        return true;
    }
    if (!m_file && chunk.size() <= m_memoryLimit - m_memory.size()) {
        appendBytes(m_memory, chunk);
    } else if (!spill(chunk)) {
        m_failed = true;
        m_memory = {};
        m_file.reset();
    }
    return true;
}

bool UploadSpool::commit() {
    if (m_failed) {
        return false;
    }
    if (!m_file) {
        return writeWholeFile(m_destination,
                              [this](QIODevice& output) { return writeAll(output, m_memory); });
    }
    return m_file->seek(0) && writeWholeFile(m_destination, [this](QIODevice& output) {
               return copyAll(*m_file, output);
           });
}

bool UploadSpool::spill(ByteSpan chunk) {
    if (!m_file) {
        m_file = std::make_unique<QTemporaryFile>();
        if (!m_file->open() || !writeAll(*m_file, std::exchange(m_memory, {}))) {
            return false;
        }
    }
    return writeAll(*m_file, chunk);
}

} // namespace corvane
