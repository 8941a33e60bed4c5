#include "SessionCommand.h"

#include <algorithm>
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

std::string loggableCommand(std::string_view command) {
    constexpr size_t kMaximumLength = 200;
    std::string text(command.substr(0, kMaximumLength));
    std::replace_if(
        text.begin(), text.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
    return command.size() > kMaximumLength ? text + "..." : text;
}

} // namespace corvane
