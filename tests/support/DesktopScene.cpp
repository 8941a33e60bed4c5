#include "DesktopScene.h"

#include <array>

namespace corvane::test {

namespace {

constexpr int kGlyphWidth = 8;
constexpr int kLineHeight = 18;
constexpr int kStepsPerScroll = 4;
constexpr uint32_t kDesktop = 0x2b5b84;
constexpr uint32_t kPaper = 0xfcfcfa;
constexpr std::array<uint32_t, 4> kInks = {0x1e1e1e, 0x1e1e1e, 0x0033b3, 0x067d17};

uint32_t hashOf(int a, int b) {
    uint32_t hash = static_cast<uint32_t>(a) * 0x9e3779b1U ^ static_cast<uint32_t>(b) * 0x85ebca6bU;
    hash ^= hash >> 15;
    hash *= 0x2c1b3c6dU;
    return hash ^ hash >> 13;
}

/// A pixel of the text pane: words of glyphs five by ten, in lines of different length.
uint32_t textPixel(int x, int y) {
    const int line = y / kLineHeight;
    const int column = x / kGlyphWidth;
    const int glyphX = x % kGlyphWidth;
    const int glyphY = y % kLineHeight - 4;
    const uint32_t glyph = hashOf(column, line);
    const bool beyondEnd = column > static_cast<int>(hashOf(line, 7) % 90);
    const bool space = glyph % 6 == 0;
    if (beyondEnd || space || glyphX >= 5 || glyphY < 0 || glyphY >= 10) {
        return kPaper;
    }
    const bool stroke = (glyph >> (glyphX + glyphY / 2 * 5) % 27 & 1) != 0;
    return stroke ? kInks[hashOf(line, column / 5) % kInks.size()] : kPaper;
}

struct Window {
    int left, top, width, height;

    bool holds(int x, int y) const {
        return x >= left && x < left + width && y >= top && y < top + height;
    }
};

uint32_t windowPixel(const Window& window, int x, int y) {
    const int row = y - window.top;
    if (row < 24) {
        const auto shade = static_cast<uint32_t>(90 + (x - window.left) * 120 / window.width);
        return shade << 8 | shade;
    }
    return row % 40 < 2 ? 0xb0b0b0 : 0xf0f0f0;
}

} // namespace

ByteVector desktopScene(int width, int height, int step) {
    const Window pane{width / 8, height / 12, width * 5 / 8, height * 5 / 6};
    const Window moving{width / 3 + step * 6 % (width / 2), height / 4 + step * 4 % (height / 3),
                        width / 4, height / 3};
    const int scrolled = step / kStepsPerScroll * kLineHeight;
    ByteVector pixels(static_cast<size_t>(width) * static_cast<size_t>(height) * 4);
    uint8_t* out = pixels.data();
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            uint32_t colour = kDesktop;
            if (moving.holds(x, y)) {
                colour = windowPixel(moving, x, y);
            } else if (pane.holds(x, y)) {
                colour = textPixel(x - pane.left, y - pane.top + scrolled);
            }
            *out++ = static_cast<uint8_t>(colour);
            *out++ = static_cast<uint8_t>(colour >> 8);
            *out++ = static_cast<uint8_t>(colour >> 16);
            *out++ = 0xff;
        }
    }
    return pixels;
}

} // namespace corvane::test
