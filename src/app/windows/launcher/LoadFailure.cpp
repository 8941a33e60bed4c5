#include "app/windows/launcher/LoadFailure.h"

#include <cstddef>
#include <cstdint>
#include <set>
#include <string_view>
#include <vector>

namespace corvane {

namespace {

/// A DLL that is laid out in memory as it would be to run, but whose code is not run.
class MappedLibrary {
public:
    explicit MappedLibrary(const std::wstring& path)
        : m_handle(LoadLibraryExW(path.c_str(), nullptr, LOAD_LIBRARY_AS_IMAGE_RESOURCE)) {}
    ~MappedLibrary() {
        if (m_handle != nullptr) {
            FreeLibrary(m_handle);
        }
    }
    MappedLibrary(const MappedLibrary&) = delete;
    MappedLibrary& operator=(const MappedLibrary&) = delete;

    /// Names as in the import table; none when the file cannot be read or is not for x64.
    std::vector<std::string> imports() const {
        std::vector<std::string> names;
        const auto* headers = imageHeaders();
        if (headers == nullptr) {
            return names;
        }
        const size_t size = headers->OptionalHeader.SizeOfImage;
        const auto& directory = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
        using Descriptor = IMAGE_IMPORT_DESCRIPTOR;
        for (size_t at = directory.VirtualAddress; at != 0 && at + sizeof(Descriptor) <= size;
             at += sizeof(Descriptor)) {
            const size_t name = reinterpret_cast<const Descriptor*>(base() + at)->Name;
            if (name == 0 || name >= size) {
                break;
            }
            const std::string_view rest(base() + name, size - name);
            names.emplace_back(rest.substr(0, rest.find('\0')));
        }
        return names;
    }

private:
    /// The handle's lowest bits say how the library was mapped.
    const char* base() const {
        return reinterpret_cast<const char*>(reinterpret_cast<uintptr_t>(m_handle) & ~uintptr_t{3});
    }

    const IMAGE_NT_HEADERS* imageHeaders() const {
        if (m_handle == nullptr) {
            return nullptr;
        }
        // Windows checked both headers before it laid the file out.
        const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(base());
        const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(base() + dos->e_lfanew);
        return headers->FileHeader.Machine == IMAGE_FILE_MACHINE_AMD64 ? headers : nullptr;
    }

    const HMODULE m_handle;
};

/// Where Windows would take the DLL from; empty when nowhere.
std::wstring find(const std::wstring& name) {
    std::wstring path(MAX_PATH, L'\0');
    const auto search = [&] {
        return SearchPathW(nullptr, name.c_str(), nullptr, static_cast<DWORD>(path.size()),
                           path.data(), nullptr);
    };
    DWORD length = search();
    if (length > path.size()) {
        path.resize(length);
        length = search();
    }
    path.resize(length);
    return path;
}

/// The system's error; 0 when the library loads. Some names in an import table stand for parts of
/// Windows and not for files, so only loading tells whether they are there.
DWORD loadError(const std::wstring& name) {
    const HMODULE library = LoadLibraryExW(name.c_str(), nullptr, 0);
    if (library == nullptr) {
        return GetLastError();
    }
    FreeLibrary(library);
    return 0;
}

std::wstring fileName(const std::wstring& path) {
    return path.substr(path.rfind(L'\\') + 1);
}

std::wstring failureOf(const std::wstring& library, DWORD error, std::set<std::wstring>& seen) {
    for (const std::string& import : MappedLibrary(library).imports()) {
        const std::wstring name(import.begin(), import.end());
        const DWORD importError = seen.insert(name).second ? loadError(name) : 0;
        if (importError != 0) {
            const std::wstring path = find(name);
            return path.empty() ? name + L" is missing" : failureOf(path, importError, seen);
        }
    }
    return fileName(library) + L" cannot be loaded (error " + std::to_wstring(error) + L")";
}

} // namespace

std::wstring loadFailure(const std::wstring& library, DWORD error) {
    if (GetFileAttributesW(library.c_str()) == INVALID_FILE_ATTRIBUTES) {
        return fileName(library) + L" is missing";
    }
    std::set<std::wstring> seen;
    return failureOf(library, error, seen);
}

} // namespace corvane
