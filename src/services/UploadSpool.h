#pragma once

#include "common/ByteVector.h"

#include <QString>

#include <memory>

namespace corvane {

class AtomicFile;

/// Holds the peer's upload while it arrives: in memory up to a limit, beyond that in a file beside
/// its destination. It appears at the destination only on `commit`.
class UploadSpool {
public:
    /// Max bytes kept in memory.
    static constexpr size_t kMemoryLimit = 64 * 1024 * 1024;

    /// `announcedSize` is the peer's claim: no more than that is accepted, and no more than the
    /// memory limit is allocated for it.
    UploadSpool(QString destination, quint64 announcedSize, size_t memoryLimit = kMemoryLimit);
    ~UploadSpool();

    const QString& destination() const { return m_destination; }
    quint64 announcedSize() const { return m_announcedSize; }
    quint64 receivedSize() const { return m_receivedSize; }

    /// False when the chunk exceeds the announced size; the excess is dropped.
    bool append(ByteSpan chunk);

    /// Makes what has arrived appear at the destination, which must be an absolute path. False when
    /// this, or storing the data earlier, failed.
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
