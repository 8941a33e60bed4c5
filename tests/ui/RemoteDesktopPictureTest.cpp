#include "LogCapture.h"
#include "RemoteDesktopWidget.h"

#include <QImage>
#include <QTest>
#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

namespace corvane {
namespace {

struct Ink {
    uint8_t y, u, v;
    QRgb rgb;
};

/// Of the picture's quarters, in reading order.
constexpr std::array<Ink, 4> kInks{{{76, 85, 255, 0xffff0000},
                                    {150, 44, 21, 0xff00ff00},
                                    {29, 255, 107, 0xff0000ff},
                                    {255, 128, 128, 0xffffffff}}};
constexpr QSize kViewSize(400, 300);

/// Four quarters of `kInks`; the padding of the rows holds none of them.
std::shared_ptr<DecodedFrame> quarters(QSize size, int yStride, int uvStride) {
    auto frame = std::make_shared<DecodedFrame>();
    frame->width = size.width();
    frame->height = size.height();
    frame->yStride = yStride;
    frame->uvStride = uvStride;
    frame->yPlane.assign(static_cast<size_t>(yStride * size.height()), 0);
    frame->uvPlane.assign(static_cast<size_t>(uvStride * (size.height() / 2)), 0);
    const auto ink = [](int x, int y, QSize plane) {
        return kInks[static_cast<size_t>((y * 2 >= plane.height()) * 2 + (x * 2 >= plane.width()))];
    };
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            frame->yPlane[static_cast<size_t>(y * yStride + x)] = ink(x, y, size).y;
        }
    }
    const QSize chroma(size.width() / 2, size.height() / 2);
    for (int y = 0; y < chroma.height(); ++y) {
        for (int x = 0; x < chroma.width(); ++x) {
            const auto at = static_cast<size_t>(y * uvStride + 2 * x);
            frame->uvPlane[at] = ink(x, y, chroma).u;
            frame->uvPlane[at + 1] = ink(x, y, chroma).v;
        }
    }
    return frame;
}

bool isClose(QRgb seen, QRgb expected) {
    constexpr int kTolerance = 3;
    return std::abs(qRed(seen) - qRed(expected)) <= kTolerance &&
           std::abs(qGreen(seen) - qGreen(expected)) <= kTolerance &&
           std::abs(qBlue(seen) - qBlue(expected)) <= kTolerance;
}

class RemoteDesktopPictureTest : public testing::Test {
protected:
    void show() {
        m_view = std::make_unique<RemoteDesktopWidget>();
        m_view->resize(kViewSize);
        m_view->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_view.get()));
        ASSERT_EQ(m_view->grabFramebuffer().size(), kViewSize);
        // The suite runs twice: as it is, and on an OpenGL that is held down to 3.0.
        ASSERT_EQ(m_log.count(qEnvironmentVariableIsSet("MESA_GLSL_VERSION_OVERRIDE")
                                  ? "info|Using GLSL 1.30 fallback shaders"
                                  : "info|Using GLSL 3.30 shaders"),
                  1);
    }

    /// The four quarters fill `picture` and black the rest.
    void expectQuarters(const QRect& picture, const std::string& what) {
        const QImage seen = m_view->grabFramebuffer();
        for (size_t i = 0; i < kInks.size(); ++i) {
            const QPoint centre(picture.x() + picture.width() * (i % 2 == 0 ? 1 : 3) / 4,
                                picture.y() + picture.height() * (i < 2 ? 1 : 3) / 4);
            EXPECT_TRUE(isClose(seen.pixel(centre), kInks[i].rgb))
                << what << ", quarter " << i << ": " << std::hex << seen.pixel(centre);
        }
        for (const QPoint corner :
             {QPoint(0, 0), QPoint(399, 0), QPoint(0, 299), QPoint(399, 299)}) {
            const bool black = (seen.pixel(corner) & 0xffffff) == 0;
            EXPECT_EQ(black, !picture.contains(corner)) << what << ", corner " << corner.x();
        }
    }

    bool isBlack() {
        const QImage seen = m_view->grabFramebuffer().convertToFormat(QImage::Format_RGB32);
        QImage black(seen.size(), QImage::Format_RGB32);
        black.fill(Qt::black);
        return seen == black;
    }

    test::LogCapture m_log;
    std::unique_ptr<RemoteDesktopWidget> m_view;
};

TEST_F(RemoteDesktopPictureTest, DrawsEveryGeometryInEveryScaleMode) {
    show();
    struct Case {
        QSize size;
        int yStride, uvStride;
        QRect fitted;
    };
    const Case cases[] = {
        {{64, 64}, 64, 64, {50, 0, 300, 300}},     {{33, 17}, 33, 33, {0, 47, 400, 206}},
        {{33, 17}, 33, 40, {0, 47, 400, 206}},     {{33, 17}, 48, 40, {0, 47, 400, 206}},
        {{500, 350}, 512, 512, {0, 10, 400, 280}},
    };
    for (const Case& c : cases) {
        const std::string name = fmt::format("{}x{}", c.size.width(), c.size.height());
        const std::string textures =
            fmt::format("info|Created NV12 textures: {} (yStride={}, uvStride={})", name, c.yStride,
                        c.uvStride);
        const QRect original(QPoint(0, kViewSize.height() - c.size.height()), c.size);
        m_view->updateFrame(quarters(c.size, c.yStride, c.uvStride));
        m_view->setScaleMode(ScaleMode::Fit);
        expectQuarters(c.fitted, name + " fit");
        m_view->setScaleMode(ScaleMode::Stretch);
        expectQuarters(QRect(QPoint(0, 0), kViewSize), name + " stretched");
        m_view->setScaleMode(ScaleMode::Original);
        expectQuarters(original, name + " original");
        m_view->updateFrame(quarters(c.size, c.yStride, c.uvStride));
        expectQuarters(original, name + " again");
        EXPECT_EQ(m_log.count(textures), 1) << textures;
    }
    EXPECT_FALSE(m_log.contains("OpenGL error"));
}

TEST_F(RemoteDesktopPictureTest, IsBlackWithoutPictureAndShowsOnlyTheNewest) {
    show();
    EXPECT_TRUE(isBlack());
    m_view->updateFrame(nullptr);
    EXPECT_TRUE(isBlack());
    m_view->updateFrame(quarters(QSize(32, 32), 32, 32));
    m_view->updateFrame(quarters(QSize(64, 64), 64, 64));
    expectQuarters(QRect(50, 0, 300, 300), "newest");
    EXPECT_FALSE(m_log.contains("32x32"));

    m_view->clearPicture();
    EXPECT_TRUE(isBlack());
    m_view->updateFrame(quarters(QSize(64, 64), 64, 64));
    expectQuarters(QRect(50, 0, 300, 300), "after clearing");
}

} // namespace
} // namespace corvane
