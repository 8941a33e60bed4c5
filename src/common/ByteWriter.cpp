#include "common/ByteWriter.h"

#include <bit>

namespace corvane {

void ByteWriter::binary64(double value) {
    unsignedInteger(std::bit_cast<uint64_t>(value), sizeof(double));
}

void ByteWriter::unsignedInteger(uint64_t value, size_t width) {
    for (size_t i = 0; i < width; ++i) {
        m_bytes.push_back(static_cast<uint8_t>(value >> (8 * i)));
    }
}

} // namespace corvane
