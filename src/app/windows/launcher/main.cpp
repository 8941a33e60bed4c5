// The program that the user starts. It needs nothing that Windows does not bring, so that it can
// say what is wrong where a library of the client is missing: Windows looks for those before any
// code of the client runs.
#include "app/windows/launcher/ClientEntry.h"
#include "app/windows/launcher/LoadFailure.h"
#include "app/windows/launcher/StartFailure.h"

#include <windows.h>

#include <cstdlib>
#include <string>

namespace {

using namespace corvane;

std::wstring ownFolder() {
    std::wstring path(MAX_PATH, L'\0');
    DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    while (length == path.size()) {
        path.resize(path.size() * 2);
        length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    }
    path.resize(length);
    return path.substr(0, path.rfind(L'\\') + 1);
}

} // namespace

int WINAPI WinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPSTR /*commandLine*/,
                   int /*show*/) {
    const std::wstring path = ownFolder() + kClientLibrary;
    // What Windows would show in a box of its own is said by ours.
    const UINT errorMode = SetErrorMode(SEM_FAILCRITICALERRORS);
    const HMODULE library = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    if (library == nullptr) {
        reportStartFailure(loadFailure(path, GetLastError()));
        return EXIT_FAILURE;
    }
    SetErrorMode(errorMode);
    const auto entry = reinterpret_cast<ClientEntry>(
        reinterpret_cast<void*>(GetProcAddress(library, kClientEntryName)));
    if (entry == nullptr) {
        reportStartFailure(std::wstring(kClientLibrary) + L" is of another version");
        return EXIT_FAILURE;
    }
    return entry(__argc, __argv);
}
