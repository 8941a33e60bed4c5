#include "media/HalfSize.h"

#include <cstddef>

namespace corvane {

namespace {

constexpr size_t kBytesPerPixel = 4;

void halveRow(const uint8_t* __restrict upper, const uint8_t* __restrict lower, size_t pixels,
              uint8_t* __restrict half) {
    for (size_t i = 0; i < pixels * kBytesPerPixel; ++i) {
        const size_t left = (i / kBytesPerPixel) * 2 * kBytesPerPixel + i % kBytesPerPixel;
        const size_t right = left + kBytesPerPixel;
        half[i] =
            static_cast<uint8_t>((upper[left] + upper[right] + lower[left] + lower[right] + 2) / 4);
    }
}

} // namespace

PixelView halfSize(const PixelView& picture, ByteVector& storage) {
    if (picture.width < 2 || picture.height < 2) {
        return picture;
    }
    const int width = picture.width / 2;
    const int height = picture.height / 2;
    const auto pixels = static_cast<size_t>(width);
    const auto stride = static_cast<size_t>(picture.stride);
    storage.resize(pixels * static_cast<size_t>(height) * kBytesPerPixel);
    for (size_t row = 0; row < static_cast<size_t>(height); ++row) {
        const uint8_t* const upper = picture.bgra + 2 * row * stride;
        halveRow(upper, upper + stride, pixels, storage.data() + row * pixels * kBytesPerPixel);
    }
    return {storage.data(), width, height, static_cast<int>(pixels * kBytesPerPixel)};
}

} // namespace corvane
