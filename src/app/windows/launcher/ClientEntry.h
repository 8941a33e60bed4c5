#pragma once

namespace corvane {

/// The library that holds the client, beside the launcher, and the function in it that runs it.
constexpr auto kClientLibrary = L"Corvane.dll";
constexpr auto kClientEntryName = "corvaneClientMain";
using ClientEntry = int (*)(int argc, char** argv);

} // namespace corvane
