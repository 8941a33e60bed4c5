#pragma once

#include "SessionPlatform.h"

#include <QSize>

#include <atomic>
#include <memory>
#include <vector>

namespace corvane::test {

/// What a synthetic machine shows and what is done to it. Shared between the test and the session's
/// objects, which may outlive one another.
struct Machine {
    std::atomic<int> framesToShow{1'000'000}; ///< pictures still to come; a still screen shows one
    std::atomic<int> width{160};
    std::atomic<int> height{120};
    std::atomic<int> monitor{-1};     ///< the one captured now
    std::atomic<int> shown{0};        ///< pictures so far; each is the next step of the scene
    std::atomic<uint64_t> shownAt{0}; ///< the last of them, monotonic milliseconds
    bool canCapture = true;
    std::vector<InputEvent> injected;
};

/// A platform whose screen and input are `machine`, without peer-to-peer transport.
SessionPlatform createTestPlatform(std::shared_ptr<Machine> machine);

} // namespace corvane::test
