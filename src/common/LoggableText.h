#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane {

/// What the peer wrote, made fit for one log line: control characters replaced, and cut after
/// `maxLength` bytes.
std::string loggableText(std::string_view text, size_t maxLength);

} // namespace corvane
