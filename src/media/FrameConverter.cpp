#include "media/FrameConverter.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace corvane {

namespace {

constexpr size_t kBytesPerPixel = 4;

/// Pixels per pass over a row pair: the colour planes of one pass fit in the first-level cache.
constexpr size_t kBlock = 256;

using Samples = std::array<int16_t, kBlock>;

/// One block of pixels, split by colour. Sixteen bits per sample let the compiler multiply eight at
/// once on every x64 processor.
struct Colors {
    Samples red;
    Samples green;
    Samples blue;
};

uint64_t nv12Size(int32_t width, int32_t height) {
    return static_cast<uint64_t>(width) * static_cast<uint64_t>(height) * 3 / 2;
}

void splitColors(const uint8_t* __restrict source, size_t count, Colors& __restrict colors) {
    for (size_t i = 0; i < count; ++i) {
        colors.blue[i] = source[i * kBytesPerPixel];
        colors.green[i] = source[i * kBytesPerPixel + 1];
        colors.red[i] = source[i * kBytesPerPixel + 2];
    }
}

/// The weights add up to 2^15, so that no sample can exceed 255.
void convertLuma(const Colors& __restrict colors, size_t count, uint8_t* __restrict luma) {
    constexpr int16_t kRed = 9798;
    constexpr int16_t kGreen = 19235;
    constexpr int16_t kBlue = 3735;
    static_assert(kRed + kGreen + kBlue == 1 << 15);
    for (size_t i = 0; i < count; ++i) {
        const int32_t sum =
            kRed * colors.red[i] + kGreen * colors.green[i] + kBlue * colors.blue[i];
        luma[i] = static_cast<uint8_t>((sum + 16384) >> 15);
    }
}

/// Rounded averages of blocks of two by two samples. Adding neighbours as halves of one word avoids
/// the shuffling needed to pick every other sample.
void averageBlocks(const Samples& __restrict upper, const Samples& __restrict lower, size_t pairs,
                   Samples& __restrict averages) {
    for (size_t i = 0; i < pairs; ++i) {
        uint32_t above = 0;
        uint32_t below = 0;
        std::memcpy(&above, &upper[2 * i], sizeof(above));
        std::memcpy(&below, &lower[2 * i], sizeof(below));
        const uint32_t columns = above + below;
        averages[i] = static_cast<int16_t>(((columns & 0xffff) + (columns >> 16) + 2) >> 2);
    }
}

uint8_t chromaSample(int32_t sum) {
    return static_cast<uint8_t>(std::clamp(((sum + 16384) >> 15) + 128, 0, 255));
}

void convertChroma(const Colors& __restrict averages, size_t pairs, uint8_t* __restrict chroma) {
    constexpr int16_t kHalf = 16384;
    constexpr int16_t kGreenInCb = -10846;
    constexpr int16_t kRedInCb = -5538;
    constexpr int16_t kGreenInCr = -13730;
    constexpr int16_t kBlueInCr = -2654;
    for (size_t i = 0; i < pairs; ++i) {
        const int16_t red = averages.red[i];
        const int16_t green = averages.green[i];
        const int16_t blue = averages.blue[i];
        chroma[2 * i] = chromaSample(kHalf * blue + kGreenInCb * green + kRedInCb * red);
        chroma[2 * i + 1] = chromaSample(kHalf * red + kGreenInCr * green + kBlueInCr * blue);
    }
}

void convertRowPair(const uint8_t* upper, const uint8_t* lower, size_t count, uint8_t* upperLuma,
                    uint8_t* lowerLuma, uint8_t* chroma) {
    Colors above;
    Colors below;
    Colors averages;
    for (size_t column = 0; column < count; column += kBlock) {
        const size_t block = std::min(kBlock, count - column);
        splitColors(upper + column * kBytesPerPixel, block, above);
        splitColors(lower + column * kBytesPerPixel, block, below);
        convertLuma(above, block, upperLuma + column);
        convertLuma(below, block, lowerLuma + column);
        averageBlocks(above.red, below.red, block / 2, averages.red);
        averageBlocks(above.green, below.green, block / 2, averages.green);
        averageBlocks(above.blue, below.blue, block / 2, averages.blue);
        convertChroma(averages, block / 2, chroma + column);
    }
}

} // namespace

void FrameConverter::convert(const uint8_t* source, int32_t width, int32_t height,
                             int32_t sourceStride, uint8_t* destination,
                             size_t destinationSize) const {
    if (source == nullptr || destination == nullptr) {
        spdlog::error("FrameConverter: null pointer passed to convert()");
        return;
    }
    if (width < 1 || height < 1) {
        spdlog::error("FrameConverter: invalid dimensions {}x{}", width, height);
        return;
    }
    const uint64_t required = nv12Size(width, height);
    if (destinationSize != 0 && destinationSize < required) {
        spdlog::error("FrameConverter: output buffer too small ({} < {} required)", destinationSize,
                      required);
        return;
    }
    const int32_t evenWidth = width & ~1;
    const int32_t evenHeight = height & ~1;
    if (evenWidth != width || evenHeight != height) {
        spdlog::debug("FrameConverter: dimensions {}x{} not even, using {}x{}", width, height,
                      evenWidth, evenHeight);
    }

    const auto lumaStride = static_cast<size_t>(width);
    const auto rows = static_cast<size_t>(evenHeight);
    uint8_t* const chroma = destination + lumaStride * rows;
    for (size_t row = 0; row < rows; row += 2) {
        const uint8_t* const upper =
            source + static_cast<ptrdiff_t>(row) * static_cast<ptrdiff_t>(sourceStride);
        uint8_t* const luma = destination + row * lumaStride;
        convertRowPair(upper, upper + sourceStride, static_cast<size_t>(evenWidth), luma,
                       luma + lumaStride, chroma + row / 2 * lumaStride);
    }
}

ByteVector allocateNV12(int32_t width, int32_t height) {
    if (width < 1 || height < 1) {
        return {};
    }
    return ByteVector(nv12Size(width, height), uint8_t{0});
}

} // namespace corvane
