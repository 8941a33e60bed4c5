#pragma once

#include <cstdlib>
#include <memory>

namespace corvane::harness {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply or event of the X server, which the receiver frees.
template <typename T>
using XReply = std::unique_ptr<T, FreeReply>;

} // namespace corvane::harness
