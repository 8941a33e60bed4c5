#pragma once

#include <windows.h>

#include <functional>

namespace corvane {

/// The entry points for injecting input: the system's own unless a test substitutes others.
struct InputFunctions {
    std::function<decltype(::SendInput)> sendInput = ::SendInput;
    std::function<decltype(::GetLastError)> lastError = ::GetLastError;
};

} // namespace corvane
