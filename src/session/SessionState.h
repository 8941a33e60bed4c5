#pragma once

#include <QMetaType>

#include <cstdint>
#include <string_view>

namespace corvane {

enum class SessionState : uint8_t {
    Idle = 0,        ///< no session
    Initiating = 1,  ///< viewer: request sent, waiting for the session ID
    Handshaking = 2, ///< key exchange in progress
    Connecting = 3,  ///< keys agreed, transport being set up
    Connected = 4,   ///< transport up, streaming
    Closing = 5,     ///< being ended
    Failed = 6,      ///< ended by an error; like Idle for new sessions
};

enum class SessionRole : uint8_t {
    None = 0,
    Master = 1, ///< the viewer, which initiates
    Target = 2, ///< the shared machine, which accepts
};

/// "Idle", "Initiating", …; "Unknown" for a value outside the enumeration.
std::string_view sessionStateName(SessionState state);

/// "Master" or "Target"; "None" without a role.
std::string_view sessionRoleName(SessionRole role);

} // namespace corvane

Q_DECLARE_METATYPE(corvane::SessionState)
