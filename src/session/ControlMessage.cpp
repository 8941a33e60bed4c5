#include "session/ControlMessage.h"

#include "common/ByteWriter.h"

namespace corvane {

ByteVector controlMessage(ControlTag tag, ByteSpan payload) {
    ByteWriter writer(1 + payload.size());
    writer.integer(static_cast<uint8_t>(tag));
    writer.bytes(payload);
    return writer.take();
}

} // namespace corvane
