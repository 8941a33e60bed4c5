#include "FrameConverter.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

constexpr size_t kBytesPerPixel = 4;

/// Pixels per pass over a row pair: the colour planes of one pass stay in the first-level cache.
constexpr size_t kBlock = 256;

/// One block of a row, colour by colour. Sixteen bits a sample let the compiler multiply eight at
/// once on every x64 processor.
struct ColourRow {
    std::array<int16_t, kBlock> red;
    std::array<int16_t, kBlock> green;
    std::array<int16_t, kBlock> blue;
};

uint64_t nv12Size(int32_t width, int32_t height) {
    return static_cast<uint64_t>(width) * static_cast<uint64_t>(height) * 3 / 2;
}

void splitColours(const uint8_t* __restrict source, size_t count, ColourRow& __restrict row) {
    for (size_t i = 0; i < count; ++i) {
        row.blue[i] = source[i * kBytesPerPixel];
        row.green[i] = source[i * kBytesPerPixel + 1];
        row.red[i] = source[i * kBytesPerPixel + 2];
    }
}

void convertLuma(const ColourRow& __restrict row, size_t count, uint8_t* __restrict luma) {
    constexpr int16_t kRed = 9798;
    constexpr int16_t kGreen = 19235;
    constexpr int16_t kBlue = 3735;
    for (size_t i = 0; i < count; ++i) {
        const int32_t sum = kRed * row.red[i] + kGreen * row.green[i] + kBlue * row.blue[i];
        luma[i] = static_cast<uint8_t>(std::min((sum + 16384) >> 15, 255));
    }
}

uint8_t chromaSample(int32_t sum) {
    return static_cast<uint8_t>(std::clamp(((sum + 16384) >> 15) + 128, 0, 255));
}

void convertChroma(const ColourRow& __restrict upper, const ColourRow& __restrict lower,
                   size_t count, uint8_t* __restrict chroma) {
    constexpr int16_t kHalf = 16384;
    constexpr int16_t kGreenInCb = -10846;
    constexpr int16_t kRedInCb = -5538;
    constexpr int16_t kGreenInCr = -13730;
    constexpr int16_t kBlueInCr = -2654;
    const auto average = [](const auto& above, const auto& below, size_t i) {
        return static_cast<int16_t>((above[i] + above[i + 1] + below[i] + below[i + 1] + 2) >> 2);
    };
    for (size_t i = 0; i < count; i += 2) {
        const int16_t red = average(upper.red, lower.red, i);
        const int16_t green = average(upper.green, lower.green, i);
        const int16_t blue = average(upper.blue, lower.blue, i);
        chroma[i] = chromaSample(kHalf * blue + kGreenInCb * green + kRedInCb * red);
        chroma[i + 1] = chromaSample(kHalf * red + kGreenInCr * green + kBlueInCr * blue);
    }
}

void convertRowPair(const uint8_t* upper, const uint8_t* lower, size_t count, uint8_t* upperLuma,
                    uint8_t* lowerLuma, uint8_t* chroma) {
    ColourRow upperColours;
    ColourRow lowerColours;
    for (size_t column = 0; column < count; column += kBlock) {
        const size_t block = std::min(kBlock, count - column);
        splitColours(upper + column * kBytesPerPixel, block, upperColours);
        splitColours(lower + column * kBytesPerPixel, block, lowerColours);
        convertLuma(upperColours, block, upperLuma + column);
        convertLuma(lowerColours, block, lowerLuma + column);
        convertChroma(upperColours, lowerColours, block, chroma + column);
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
