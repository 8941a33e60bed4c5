#pragma once

#include "common/ByteVector.h"

#include <QString>

#include <memory>

namespace corvane {

class AtomicFile;

/// The peer's upload while it arrives: in memory as far as that is reasonable, in a file beside its
/// destination beyond it, and at its destination only when `commit` says so.
class UploadSpool {
public:
    /// Bytes kept in memory at most.
    static constexpr size_t kMemoryLimit = 64 * 1024 * 1024;

    /// `announcedSize` is the peer's word; no more than that is taken, and no more than the memory
    /// limit is allocated for it.
    UploadSpool(QString destination, quint64 announcedSize, size_t memoryLimit = kMemoryLimit);
    ~UploadSpool();

    const QString& destination() const { return m_destination; }
    quint64 announcedSize() const { return m_announcedSize; }
    quint64 receivedSize() const { return m_receivedSize; }

    /// False for a chunk that exceeds the announced size: what is beyond that is not taken.
    bool append(ByteSpan chunk);

    /// Has what has arrived appear at the destination, an absolute path. False when that, or
    /// keeping it until now, failed.
    bool commit();

private:
    bool keep(ByteSpan chunk);

    const QString m_destination;
    const quint64 m_announcedSize;
    const size_t m_memoryLimit;
    quint64 m_receivedSize = 0;
    bool m_failed;
    ByteVector m_memory;
    std::unique_ptr<AtomicFile> m_file;
};

} // namespace corvane
