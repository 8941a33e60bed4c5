#pragma once

#include "common/ByteVector.h"

#include <concepts>
#include <cstddef>
#include <optional>

namespace corvane {

/// Reads little-endian fields from untrusted bytes. A read past the end yields no value and leaves
/// the position where it was. Does not own the bytes.
class ByteReader {
public:
    explicit ByteReader(ByteSpan bytes) : m_rest(bytes) {}

    size_t remaining() const { return m_rest.size(); }

    /// The next `sizeof(T)` bytes as a little-endian integer.
    template <std::unsigned_integral T>
    std::optional<T> integer() {
        const auto value = unsignedInteger(sizeof(T));
        return value ? std::optional<T>(static_cast<T>(*value)) : std::nullopt;
    }

    /// The next eight bytes as an IEEE 754 binary64.
    std::optional<double> binary64();

    /// A view of the next `count` bytes, valid as long as the underlying bytes.
    std::optional<ByteSpan> bytes(size_t count);

private:
    std::optional<uint64_t> unsignedInteger(size_t width);

    ByteSpan m_rest;
};

} // namespace corvane
