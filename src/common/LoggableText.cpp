#include "common/LoggableText.h"

#include <algorithm>

namespace corvane {

std::string loggableText(std::string_view text, size_t maxLength) {
    std::string loggable(text.substr(0, maxLength));
    std::replace_if(
        loggable.begin(), loggable.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }, '?');
    return text.size() > maxLength ? loggable + "..." : loggable;
}

} // namespace corvane
