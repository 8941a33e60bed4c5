#pragma once

#include "common/ByteVector.h"

namespace corvane {

/// Whether the packet begins a new coded sequence, so that nothing before it is needed to decode
/// it. Safe with any bytes.
bool isKeyframePacket(ByteSpan packet);

} // namespace corvane
