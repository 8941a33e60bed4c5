#include "session/SessionState.h"

#include <array>
#include <cstddef>

namespace corvane {

std::string_view sessionStateName(SessionState state) {
    static constexpr std::array<std::string_view, 7> kNames{
        "Idle", "Initiating", "Handshaking", "Connecting", "Connected", "Closing", "Failed"};
    const auto index = static_cast<size_t>(state);
    return index < kNames.size() ? kNames[index] : "Unknown";
}

std::string_view sessionRoleName(SessionRole role) {
    switch (role) {
    case SessionRole::Master:
        return "Master";
    case SessionRole::Target:
        return "Target";
    case SessionRole::None:
        break;
    }
    return "None";
}

} // namespace corvane
