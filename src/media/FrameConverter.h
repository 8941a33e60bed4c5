#pragma once

#include "common/ByteVector.h"

#include <cstddef>
#include <cstdint>

namespace corvane {

/// Converts screen images to the encoder's input format. Holds no state: one instance serves any
/// number of frames of any size, from any thread.
class FrameConverter {
public:
    /// Converts `height` rows of `width` BGRA pixels, `sourceStride` bytes apart, to full-range
    /// BT.601 NV12 without row padding. `destination` takes `width * height * 3 / 2` bytes; a
    /// `destinationSize` of 0 means the caller guarantees that. An odd last column or row is left
    /// as it was, and the chroma plane begins after the last even row. Failures are logged and
    /// leave the destination untouched.
    void convert(const uint8_t* source, int32_t width, int32_t height, int32_t sourceStride,
                 uint8_t* destination, size_t destinationSize) const;
};

/// A zero-filled buffer of `width * height * 3 / 2` bytes for `FrameConverter::convert`; empty for
/// a size below 1.
ByteVector allocateNV12(int32_t width, int32_t height);

} // namespace corvane
