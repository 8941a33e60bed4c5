#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace corvane {

struct FreeDeleter {
    void operator()(void* pointer) const { std::free(pointer); }
};

/// Owns a reply, event or error of the X connection.
template <typename T>
using XcbReply = std::unique_ptr<T, FreeDeleter>;

} // namespace corvane
