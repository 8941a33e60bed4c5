#include "session/SessionCommand.h"

#include <charconv>

namespace corvane {

std::string switchMonitorCommand(int monitorIndex) {
    return std::string(kSwitchMonitorCommand) + std::to_string(monitorIndex);
}

std::optional<int> parseSwitchMonitorCommand(std::string_view command) {
    if (!command.starts_with(kSwitchMonitorCommand)) {
        return std::nullopt;
    }
    const std::string_view digits = command.substr(kSwitchMonitorCommand.size());
    int index = 0;
    const char* const end = digits.data() + digits.size();
    const auto [parsedTo, error] = std::from_chars(digits.data(), end, index);
    if (error != std::errc() || parsedTo != end || index < 0) {
        return std::nullopt;
    }
    return index;
}

} // namespace corvane
