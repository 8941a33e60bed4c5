#pragma once

#include "common/ByteVector.h"

#include <concepts>
#include <cstddef>

namespace corvane {

/// Appends little-endian fields to a byte buffer.
class ByteWriter {
public:
    /// `capacity`: bytes to reserve up front.
    explicit ByteWriter(size_t capacity = 0) { m_bytes.reserve(capacity); }

    template <std::unsigned_integral T>
    void integer(T value) {
        unsignedInteger(value, sizeof(T));
    }

    /// Eight bytes, IEEE 754 binary64.
    void binary64(double value);

    void bytes(ByteSpan data) { appendBytes(m_bytes, data); }

    /// Hands the buffer over and leaves the writer empty.
    ByteVector take() { return std::move(m_bytes); }

private:
    void unsignedInteger(uint64_t value, size_t width);

    ByteVector m_bytes;
};

} // namespace corvane
