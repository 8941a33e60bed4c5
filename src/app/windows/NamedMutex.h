#pragma once

#include <windows.h>

namespace corvane {

/// The system entry points of `NamedMutex`, replaceable where a test needs them to fail.
struct MutexCalls {
    decltype(&::CreateMutexW) createMutex = &::CreateMutexW;
    decltype(&::GetLastError) lastError = &::GetLastError;
};

/// A named mutex that marks its holder as the only one of its kind on this machine. The system
/// frees the name when the last process that holds it ends, however that happens.
class NamedMutex {
public:
    explicit NamedMutex(const wchar_t* name, const MutexCalls& calls = {});
    ~NamedMutex();
    NamedMutex(const NamedMutex&) = delete;
    NamedMutex& operator=(const NamedMutex&) = delete;

    /// False when another process holds the name. True when the system refuses the mutex for any
    /// other reason, which must not keep the program from starting.
    bool isFirst() const { return m_first; }

private:
    HANDLE m_handle = nullptr;
    bool m_first = true;
};

} // namespace corvane
