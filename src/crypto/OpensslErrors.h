#pragma once

#include <string>

namespace corvane {

/// Drains this thread's OpenSSL error queue into one text, oldest first, joined by "; ";
/// "unknown error" when the queue is empty.
std::string opensslErrors();

} // namespace corvane
