#pragma once

#include "common/ByteVector.h"

#include <functional>

namespace corvane {

/// Sends one message to the peer. False when it was not accepted: no session, message too large,
/// connection gone.
using SendFunction = std::function<bool(const ByteVector& message)>;

} // namespace corvane
