#include "app/windows/NamedMutex.h"

namespace corvane {

NamedMutex::NamedMutex(const wchar_t* name, const MutexCalls& calls) {
    constexpr BOOL kNotOwned = FALSE;
    m_handle = calls.createMutex(nullptr, kNotOwned, name);
    const DWORD error = calls.lastError();
    // A copy that was started at log-on runs elevated: an ordinary one finds its mutex there but
    // may not open it.
    const bool exists =
        m_handle != nullptr ? error == ERROR_ALREADY_EXISTS : error == ERROR_ACCESS_DENIED;
    m_first = !exists;
    if (exists && m_handle != nullptr) {
        CloseHandle(m_handle);
        m_handle = nullptr;
    }
}

NamedMutex::~NamedMutex() {
    if (m_handle != nullptr) {
        CloseHandle(m_handle);
    }
}

} // namespace corvane
