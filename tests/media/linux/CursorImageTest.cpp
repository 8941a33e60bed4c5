#include "linux/CursorImage.h"

#include <gtest/gtest.h>

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
    struct Case {
        uint32_t argb;
        std::array<uint8_t, 3> bgr;
    };
    for (const Case& c : {Case{0xff112233, {0x33, 0x22, 0x11}}, Case{0x00000000, {100, 100, 100}},
                          Case{0x80402000, {50, 82, 114}}, Case{0x40ffffff, {255, 255, 255}}}) {
        CapturedFrame frame = greyFrame(1, 1);
        blendCursor({.width = 1, .height = 1, .pixels = {c.argb}}, frame);
        EXPECT_EQ((std::array{frame.data[0], frame.data[1], frame.data[2]}), c.bgr);
    }
}

TEST(CursorImageTest, CutsOffWhatLiesOutsideTheFrame) {
    constexpr int kCursor = 3;
    constexpr int kFrame = 5;
    for (int top = -4; top <= 6; ++top) {
        for (int left = -4; left <= 6; ++left) {
            CapturedFrame frame = greyFrame(kFrame, kFrame);
            blendCursor({.left = left,
                         .top = top,
                         .width = kCursor,
                         .height = kCursor,
                         .pixels = std::vector<uint32_t>(kCursor * kCursor, 0xff00ff00)},
                        frame);
            CapturedFrame expected = greyFrame(kFrame, kFrame);
            for (int row = 0; row < kFrame; ++row) {
                for (int column = 0; column < kFrame; ++column) {
                    const bool covered = row >= top && row < top + kCursor && column >= left &&
                                         column < left + kCursor;
                    for (int channel = 0; covered && channel < 3; ++channel) {
                        expected.data[static_cast<size_t>(row * expected.stride + column * 4 +
                                                          channel)] = channel == 1 ? 255 : 0;
                    }
                }
            }
            EXPECT_EQ(frame.data, expected.data) << left << "," << top;
        }
    }
}

} // namespace
} // namespace corvane
