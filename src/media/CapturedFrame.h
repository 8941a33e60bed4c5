#pragma once

#include "common/ByteVector.h"

#include <QMetaType>

#include <cstdint>
#include <memory>
#include <vector>

namespace corvane {

struct FrameRect {
    int32_t left = 0;
    int32_t top = 0;
    int32_t right = 0;
    int32_t bottom = 0;

    bool operator==(const FrameRect&) const = default;
};

/// One screen image.
struct CapturedFrame {
    ByteVector data;                   ///< 32-bit BGRA, top row first, `height * stride` bytes
    int32_t width = 0;                 ///< pixels
    int32_t height = 0;                ///< pixels
    int32_t stride = 0;                ///< bytes per row, at least 4 * width
    uint64_t timestamp = 0;            ///< capture time, milliseconds of the monotonic clock
    bool keyframeRequested = false;    ///< the encoder must start afresh with this frame
    std::vector<FrameRect> dirtyRects; ///< changed regions; empty means the whole frame
    int refinement = 0; ///< 0 for a new picture, then one more for each finer repetition of it
};

} // namespace corvane

Q_DECLARE_METATYPE(std::shared_ptr<corvane::CapturedFrame>)
