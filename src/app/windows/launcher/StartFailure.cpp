#include "app/windows/launcher/StartFailure.h"

#include <windows.h>

#include <knownfolders.h>
#include <shlobj.h>

#include <array>
#include <cstdio>
#include <string>

namespace corvane {

namespace {

/// The client's own log, in a folder that is made if it is missing. Empty when Windows has no such
/// folder.
std::wstring logPath() {
    PWSTR localData = nullptr;
    std::wstring path;
    if (SUCCEEDED(
            SHGetKnownFolderPath(FOLDERID_LocalAppData, KF_FLAG_CREATE, nullptr, &localData))) {
        const std::wstring folder = std::wstring(localData) + L"\\Corvane\\CorvaneClient";
        SHCreateDirectoryExW(nullptr, folder.c_str(), nullptr);
        path = folder + L"\\CorvaneClient.log";
    }
    CoTaskMemFree(localData);
    return path;
}

std::string utf8(const std::wstring& text) {
    const auto length = static_cast<int>(text.size());
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}

/// In the form of the client's lines.
std::string logLine(const std::wstring& reason) {
    SYSTEMTIME now;
    GetLocalTime(&now);
    std::array<char, 64> prefix{};
    std::snprintf(prefix.data(), prefix.size(),
                  "[%04d-%02d-%02d %02d:%02d:%02d.%03d] [corvane] [error] ", now.wYear, now.wMonth,
                  now.wDay, now.wHour, now.wMinute, now.wSecond, now.wMilliseconds);
    return prefix.data() + ("Launcher: " + utf8(reason)) + "\r\n";
}

/// Appends: a copy that was started before the library went away may still write to the log.
void writeLog(const std::string& line) {
    const HANDLE log = CreateFileW(logPath().c_str(), FILE_APPEND_DATA,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                   OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (log != INVALID_HANDLE_VALUE) {
        DWORD written = 0;
        WriteFile(log, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
        CloseHandle(log);
    }
}

} // namespace

void reportStartFailure(const std::wstring& reason) {
    writeLog(logLine(reason));
    const std::wstring text = L"Corvane cannot start: " + reason +
                              L".\n\nInstalling Corvane again puts back what it needs.";
    MessageBoxW(nullptr, text.c_str(), L"Corvane", MB_OK | MB_ICONERROR);
}

} // namespace corvane
