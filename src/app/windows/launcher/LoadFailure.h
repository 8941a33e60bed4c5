#pragma once

#include <string>

#include <windows.h>

namespace corvane {

/// Why Windows gave `error` when it was to load `library`, a full path, as the end of a sentence.
/// Names the library at fault, which may be one that is imported by way of others.
std::wstring loadFailure(const std::wstring& library, DWORD error);

} // namespace corvane
