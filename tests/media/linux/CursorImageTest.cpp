#include "media/linux/CursorImage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

namespace corvane {
namespace {

CapturedFrame greyFrame(int width, int height) {
    CapturedFrame frame;
    frame.width = width;
    frame.height = height;
    frame.stride = width * 4 + 8;
    frame.data.assign(static_cast<size_t>(frame.stride * height), uint8_t{100});
    return frame;
}

TEST(CursorImageTest, BlendsPremultipliedColoursOverTheFrame) {
    const std::pair<uint32_t, std::array<uint8_t, 3>> cases[] = {{0xff112233, {0x33, 0x22, 0x11}},
                                                                 {0x00000000, {100, 100, 100}},
                                                                 {0x80402000, {50, 82, 114}},
                                                                 {0x40ffffff, {255, 255, 255}}};
    for (const auto& [argb, bgr] : cases) {
        CapturedFrame frame = greyFrame(1, 1);
        blendCursor({.width = 1, .height = 1, .pixels = {argb}}, frame);
        EXPECT_EQ((std::array{frame.data[0], frame.data[1], frame.data[2]}), bgr);
    }
}

TEST(CursorImageTest, CutsOffWhatLiesOutsideTheFrame) {
    const std::vector<uint32_t> green(3 * 3, 0xff00ff00);
    for (int at = 0; at < 11 * 11; ++at) {
        const int left = at % 11 - 4;
        const int top = at / 11 - 4;
        CapturedFrame frame = greyFrame(5, 5);
        blendCursor({.left = left, .top = top, .width = 3, .height = 3, .pixels = green}, frame);
        CapturedFrame expected = greyFrame(5, 5);
        for (int row = std::max(top, 0); row < std::min(top + 3, 5); ++row) {
            for (int column = std::max(left, 0); column < std::min(left + 3, 5); ++column) {
                auto* const pixel = expected.data.data() + row * expected.stride + column * 4;
                pixel[0] = pixel[2] = 0;
                pixel[1] = 255;
            }
        }
        EXPECT_EQ(frame.data, expected.data) << left << "," << top;
    }
}

} // namespace
} // namespace corvane
