#include "media/AV1Packet.h"

#include <dav1d/dav1d.h>

namespace corvane {

bool isKeyframePacket(ByteSpan packet) {
    Dav1dSequenceHeader header;
    return !packet.empty() &&
           dav1d_parse_sequence_header(&header, packet.data(), packet.size()) == 0;
}

} // namespace corvane
