#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace corvane {

/// The texts that session commands carry.
inline constexpr std::string_view kDisconnectCommand = "disconnect";
inline constexpr std::string_view kSwitchMonitorCommand = "switch_monitor:";

std::string switchMonitorCommand(int monitorIndex);

/// The index that a monitor-switch command names. No value when the text is another command or its
/// number is not a non-negative decimal integer.
std::optional<int> parseSwitchMonitorCommand(std::string_view command);

} // namespace corvane
