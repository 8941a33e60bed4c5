#include "integration/windows/ElevatedCommand.h"

#include <objbase.h>
#include <spdlog/spdlog.h>

namespace corvane {

namespace {

constexpr DWORD kMaxWaitMs = 30'000;

/// The shell may leave the start to one of its extensions, which are COM objects.
class ComApartment {
public:
    ComApartment()
        : m_result(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
    ~ComApartment() {
        if (SUCCEEDED(m_result)) {
            CoUninitialize();
        }
    }
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;

private:
    const HRESULT m_result;
};

const wchar_t* wide(const QString& text) {
    return reinterpret_cast<const wchar_t*>(text.utf16());
}

} // namespace

bool runElevated(const QString& commandLine, const ElevationFunctions& functions) {
    const ComApartment apartment;
    const QString parameters = QStringLiteral("/c ") + commandLine;
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof info;
    // Not asynchronous: this thread pumps no messages for the shell to finish with.
    info.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_NOASYNC;
    info.lpVerb = L"runas";
    info.lpFile = L"cmd.exe";
    info.lpParameters = wide(parameters);
    info.nShow = SW_HIDE;
    if (!functions.shellExecute(&info)) {
        spdlog::warn("runElevated: not started (error {})", GetLastError());
        return false;
    }
    if (info.hProcess != nullptr) {
        functions.waitForObject(info.hProcess, kMaxWaitMs);
        functions.closeHandle(info.hProcess);
    }
    return true;
}

} // namespace corvane
