#pragma once

#include "common/ByteVector.h"
#include "common/ControlTag.h"

namespace corvane {

/// The tag byte followed by the payload, ready to be sealed.
ByteVector controlMessage(ControlTag tag, ByteSpan payload);

} // namespace corvane
