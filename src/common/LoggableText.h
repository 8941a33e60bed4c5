#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace corvane {

/// Text from the peer, made fit for one log line: control characters replaced, and cut after
/// `maxLength` bytes.
std::string loggableText(std::string_view text, size_t maxLength);

} // namespace corvane
