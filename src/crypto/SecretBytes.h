#pragma once

#include "common/ByteVector.h"

#include <cstddef>

namespace corvane {

/// A byte buffer that is wiped before its memory is given back. Starts uninitialised.
class SecretBytes {
public:
    explicit SecretBytes(size_t size = 0) : m_bytes(size) {}
    explicit SecretBytes(ByteSpan bytes) : m_bytes(bytes.begin(), bytes.end()) {}
    ~SecretBytes() { wipe(); }
    SecretBytes(const SecretBytes&) = delete;
    SecretBytes& operator=(const SecretBytes&) = delete;
    SecretBytes(SecretBytes&& other) noexcept = default;
    SecretBytes& operator=(SecretBytes&& other) noexcept;

    uint8_t* data() { return m_bytes.data(); }
    const uint8_t* data() const { return m_bytes.data(); }
    size_t size() const { return m_bytes.size(); }
    bool empty() const { return m_bytes.empty(); }
    ByteSpan span() const { return m_bytes; }

    /// An ordinary copy, which nobody wipes.
    ByteVector copy() const { return m_bytes; }

    /// Keeps the first `size` bytes; the rest is wiped. `size` is at most `size()`.
    void truncate(size_t size);

private:
    void wipe();

    ByteVector m_bytes;
};

} // namespace corvane
