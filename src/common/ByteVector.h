#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

namespace corvane {

/// Allocator whose containers leave trivially constructible elements uninitialised on `resize(n)`
/// and construction from a size, so that a buffer about to be overwritten is not cleared first.
/// `resize(n, value)` and `assign(n, value)` still fill.
template <typename T, typename Base = std::allocator<T>>
class DefaultInitAllocator : public Base {
public:
    template <typename U>
    struct rebind {
        using other =
            DefaultInitAllocator<U, typename std::allocator_traits<Base>::template rebind_alloc<U>>;
    };

    using Base::Base;

    template <typename U>
    void construct(U* pointer) noexcept(std::is_nothrow_default_constructible_v<U>) {
        ::new (static_cast<void*>(pointer)) U;
    }

    template <typename U, typename... Args>
    void construct(U* pointer, Args&&... args) {
        std::allocator_traits<Base>::construct(static_cast<Base&>(*this), pointer,
                                               std::forward<Args>(args)...);
    }
};

/// The program's byte buffer: a vector of bytes that `resize` does not clear.
using ByteVector = std::vector<uint8_t, DefaultInitAllocator<uint8_t>>;

using ByteSpan = std::span<const uint8_t>;

/// Appends a copy of the bytes, which must not be the vector's own. The vector's own `insert`
/// constructs them one by one.
inline void appendBytes(ByteVector& bytes, ByteSpan more) {
    if (!more.empty()) {
        const size_t size = bytes.size();
        bytes.resize(size + more.size());
        std::memcpy(bytes.data() + size, more.data(), more.size());
    }
}

/// A copy in one piece, for the same reason.
inline ByteVector copyBytes(ByteSpan bytes) {
    ByteVector copy;
    appendBytes(copy, bytes);
    return copy;
}

} // namespace corvane
