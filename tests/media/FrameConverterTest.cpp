#include "media/FrameConverter.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace corvane {
namespace {

constexpr uint8_t kUntouched = 0xa5;

struct Colour {
    int red, green, blue;
};

Colour pixelAt(const ByteVector& bgra, int stride, int row, int column) {
    const uint8_t* const pixel = bgra.data() + row * stride + column * 4;
    return {pixel[2], pixel[1], pixel[0]};
}

/// Floor division by 2^15 after rounding, without relying on shifts.
int scaled(int64_t sum) {
    const int64_t rounded = sum + 16384;
    return static_cast<int>((rounded - ((rounded % 32768) + 32768) % 32768) / 32768);
}

/// Pixel by pixel, sample by sample, over a destination full of `kUntouched`.
ByteVector expectedNv12(const ByteVector& bgra, int width, int height, int stride, size_t size) {
    ByteVector out(size, kUntouched);
    const int evenWidth = width / 2 * 2;
    const int evenHeight = height / 2 * 2;
    const auto put = [&out](int index, int value) {
        out.at(static_cast<size_t>(index)) = static_cast<uint8_t>(std::clamp(value, 0, 255));
    };
    for (int row = 0; row < evenHeight; ++row) {
        for (int column = 0; column < evenWidth; ++column) {
            const Colour c = pixelAt(bgra, stride, row, column);
            put(row * width + column, scaled(9798 * c.red + 19235 * c.green + 3735 * c.blue));
        }
    }
    for (int row = 0; row < evenHeight; row += 2) {
        for (int column = 0; column < evenWidth; column += 2) {
            Colour sum{2, 2, 2};
            for (const auto& [down, right] : {std::pair{0, 0}, {0, 1}, {1, 0}, {1, 1}}) {
                const Colour c = pixelAt(bgra, stride, row + down, column + right);
                sum = {sum.red + c.red, sum.green + c.green, sum.blue + c.blue};
            }
            const Colour mean{sum.red / 4, sum.green / 4, sum.blue / 4};
            const int at = width * evenHeight + row / 2 * width + column;
            put(at, 128 + scaled(16384 * mean.blue - 10846 * mean.green - 5538 * mean.red));
            put(at + 1, 128 + scaled(16384 * mean.red - 13730 * mean.green - 2654 * mean.blue));
        }
    }
    return out;
}

TEST(FrameConverterTest, MatchesTheArithmeticOverRandomImages) {
    std::mt19937 random(1);
    const int shapes[][3] = {
        {1, 1, 0}, {2, 2, 0}, {3, 2, 0},   {4, 3, 0},     {3, 3, 12},
        {1, 6, 0}, {6, 1, 4}, {257, 9, 0}, {640, 48, 64}, {1023, 31, 4},
    };
    for (const auto& [width, height, padding] : shapes) {
        SCOPED_TRACE(::testing::Message() << width << "x" << height);
        const int stride = width * 4 + padding;
        ByteVector bgra(static_cast<size_t>(stride) * static_cast<size_t>(height));
        // Rounding and clamping go wrong on extreme samples first.
        std::generate(bgra.begin(), bgra.end(), [&random] {
            const auto draw = random();
            return static_cast<uint8_t>(draw % 4 == 0 ? (draw & 4 ? 255 : 0) : draw >> 8);
        });
        const size_t required = allocateNV12(width, height).size();
        ByteVector converted(required + 64, kUntouched);
        FrameConverter().convert(bgra.data(), width, height, stride, converted.data(), required);
        EXPECT_EQ(converted, expectedNv12(bgra, width, height, stride, converted.size()));
    }
}

TEST(FrameConverterTest, RefusesBadArgumentsAndWritesNothing) {
    const FrameConverter converter;
    const ByteVector source(16, uint8_t{200});
    ByteVector target(6, kUntouched);
    const test::LogCapture log;
    converter.convert(nullptr, 2, 2, 8, target.data(), 6);
    converter.convert(source.data(), 2, 2, 8, nullptr, 6);
    converter.convert(source.data(), 2, 0, 8, target.data(), 6);
    converter.convert(source.data(), -4, 2, 8, target.data(), 0);
    converter.convert(source.data(), 2, 2, 8, target.data(), 5);
    converter.convert(source.data(), 1, 1, 4, target.data(), 0);
    EXPECT_EQ(log.lines().size(), 6U);
    EXPECT_EQ(target, ByteVector(6, kUntouched));
    EXPECT_TRUE(allocateNV12(-2, -2).empty());
}

} // namespace
} // namespace corvane
