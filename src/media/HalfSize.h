#pragma once

#include "common/ByteVector.h"

#include <cstdint>

namespace corvane {

/// A 32-bit BGRA picture that somebody else owns.
struct PixelView {
    const uint8_t* bgra;
    int width;  ///< pixels
    int height; ///< pixels
    int stride; ///< bytes per row
};

/// The picture at half its width and height, rounded down: each pixel is the mean of four. It is
/// kept in `storage`. A picture of fewer than two rows or columns comes back as it is.
PixelView halfSize(const PixelView& picture, ByteVector& storage);

} // namespace corvane
