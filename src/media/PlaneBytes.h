#pragma once

#include "common/ByteVector.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

namespace corvane {

/// A plane's immutable bytes: either a vector's own, or a stretch of shared memory that lives as
/// long as anyone holds it. Copies share the bytes. May be read and destroyed on any thread.
class PlaneBytes {
public:
    PlaneBytes() = default;

    /// Takes ownership of the vector.
    PlaneBytes(ByteVector bytes) : m_size(bytes.size()) { // NOLINT(google-explicit-constructor)
        auto owner = std::make_shared<const ByteVector>(std::move(bytes));
        const uint8_t* const data = owner->data();
        m_data = std::shared_ptr<const uint8_t>(std::move(owner), data);
    }

    /// Shares `size` bytes at `data`; the pointer keeps alive whatever holds them.
    PlaneBytes(std::shared_ptr<const uint8_t> data, size_t size)
        : m_data(std::move(data)), m_size(size) {}

    const uint8_t* data() const { return m_data.get(); }
    size_t size() const { return m_size; }
    bool empty() const { return m_size == 0; }
    uint8_t operator[](size_t index) const { return m_data.get()[index]; }

private:
    std::shared_ptr<const uint8_t> m_data;
    size_t m_size = 0;
};

} // namespace corvane
