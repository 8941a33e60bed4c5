#include "media/AV1Packet.h"

#include <dav1d/dav1d.h>

#include <cstddef>
#include <cstdint>
#include <optional>

namespace corvane {

namespace {

constexpr unsigned kSequenceHeader = 1;

/// A sequence header comes first, but for a delimiter and perhaps metadata. A packet may consist of
/// millions of units; they are not all looked at.
constexpr int kMaxUnitsLookedAt = 8;

/// The number of bytes from the header to the end of the first unit; no value if it is cut short.
std::optional<size_t> firstUnitSize(ByteSpan packet) {
    constexpr unsigned kHasExtension = 0x04;
    constexpr unsigned kHasSize = 0x02;
    constexpr size_t kMaxSizeBytes = 8;
    size_t position = (packet.front() & kHasExtension) != 0 ? 2 : 1;
    if ((packet.front() & kHasSize) == 0) {
        return packet.size();
    }
    uint64_t size = 0;
    for (size_t i = 0; i < kMaxSizeBytes && position < packet.size(); ++i) {
        const uint8_t byte = packet[position++];
        size |= uint64_t{byte & 0x7FU} << (7 * i);
        if (byte < 0x80) {
            return size <= packet.size() - position ? std::optional(position + size) : std::nullopt;
        }
    }
    return std::nullopt;
}

} // namespace

bool isKeyframePacket(ByteSpan packet) {
    for (int i = 0; i < kMaxUnitsLookedAt && !packet.empty(); ++i) {
        const auto size = firstUnitSize(packet);
        if (!size) {
            return false;
        }
        if ((packet.front() >> 3 & 0x0FU) == kSequenceHeader) {
            Dav1dSequenceHeader header;
            return dav1d_parse_sequence_header(&header, packet.data(), *size) == 0;
        }
        packet = packet.subspan(*size);
    }
    return false;
}

} // namespace corvane
