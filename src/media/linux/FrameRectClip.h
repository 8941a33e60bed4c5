#pragma once

#include "media/CapturedFrame.h"

#include <algorithm>

namespace corvane {

/// The part of `rect` inside a picture of `width` by `height`; empty when they do not intersect.
inline FrameRect clipped(const FrameRect& rect, int32_t width, int32_t height) {
    return {std::max(rect.left, 0), std::max(rect.top, 0), std::min(rect.right, width),
            std::min(rect.bottom, height)};
}

inline bool isEmpty(const FrameRect& rect) {
    return rect.right <= rect.left || rect.bottom <= rect.top;
}

} // namespace corvane
