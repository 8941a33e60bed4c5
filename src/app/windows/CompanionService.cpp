#include "app/CompanionService.h"

#include <windows.h>

namespace corvane {

bool isCompanionServicePresent() {
    // Any process can own a pipe of that name, so the other end must not learn who asks.
    constexpr DWORD kFlags = SECURITY_SQOS_PRESENT | SECURITY_ANONYMOUS;
    constexpr DWORD kNoSharing = 0;
    const HANDLE pipe = CreateFileW(L"\\\\.\\pipe\\CorvaneService", GENERIC_READ | GENERIC_WRITE,
                                    kNoSharing, nullptr, OPEN_EXISTING, kFlags, nullptr);
    if (pipe == INVALID_HANDLE_VALUE) {
        return false;
    }
    CloseHandle(pipe);
    return true;
}

} // namespace corvane
