#include "common/ByteReader.h"

#include <bit>

namespace corvane {

std::optional<double> ByteReader::binary64() {
    const auto bits = unsignedInteger(sizeof(double));
    return bits ? std::optional<double>(std::bit_cast<double>(*bits)) : std::nullopt;
}

std::optional<ByteSpan> ByteReader::bytes(size_t count) {
    if (count > m_rest.size()) {
        return std::nullopt;
    }
    const ByteSpan taken = m_rest.first(count);
    m_rest = m_rest.subspan(count);
    return taken;
}

std::optional<uint64_t> ByteReader::unsignedInteger(size_t width) {
    const auto taken = bytes(width);
    if (!taken) {
        return std::nullopt;
    }
    uint64_t value = 0;
    for (size_t i = width; i-- > 0;) {
        value = value << 8 | (*taken)[i];
    }
    return value;
}

} // namespace corvane
