#pragma once

#include "common/ByteVector.h"
#include "media/PlaneBytes.h"

#include <QMetaType>

#include <cstdint>
#include <memory>

namespace corvane {

/// One full-range NV12 picture without row padding.
struct DecodedFrame {
    PlaneBytes yPlane;   ///< `height` rows of `yStride` bytes
    ByteVector uvPlane;  ///< `height / 2` rows of `uvStride` bytes, Cb at even positions, Cr at odd
    int32_t width = 0;   ///< pixels
    int32_t height = 0;  ///< pixels
    int32_t yStride = 0; ///< bytes
    int32_t uvStride = 0; ///< bytes
    uint64_t timestamp = 0;
};

} // namespace corvane

Q_DECLARE_METATYPE(std::shared_ptr<corvane::DecodedFrame>)
