// The client is a library for the launcher to load, which can tell the user when that fails.
#include "app/Client.h"
#include "app/windows/launcher/ClientEntry.h"

#include <type_traits>

extern "C" __declspec(dllexport) int corvaneClientMain(int argc, char** argv) {
    return corvane::runClient(argc, argv);
}

static_assert(std::is_same_v<decltype(&corvaneClientMain), corvane::ClientEntry>);
