#include "crypto/OpensslErrors.h"

#include <openssl/err.h>

#include <array>

namespace corvane {

std::string opensslErrors() {
    std::string text;
    while (const unsigned long code = ERR_get_error()) {
        std::array<char, 256> line{};
        ERR_error_string_n(code, line.data(), line.size());
        text += text.empty() ? "" : "; ";
        text += line.data();
    }
    return text.empty() ? "unknown error" : text;
}

} // namespace corvane
