#include "media/linux/XcbCaptureBackend.h"
#include "media/CaptureBackendCandidate.h"
#include "support/LogCapture.h"
#include "support/linux/XClient.h"
#include "xvfb/XvfbServer.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace corvane {
namespace {

using namespace Qt::StringLiterals;

constexpr uint32_t kRed = 0xc81e0a;
constexpr uint32_t kGreen = 0x14b428;

class XcbCaptureBackendTest : public ::testing::Test {
protected:
    void SetUp() override { startServer({}); }

    void startServer(const QStringList& arguments) {
        painter.reset();
        server.reset();
        server = std::make_unique<test::XvfbServer>(QSize(640, 480), arguments);
        ASSERT_TRUE(server->isRunning());
        server->use();
        painter = std::make_unique<test::XClient>();
        warpPointer(600, 440);
    }

    void warpPointer(int16_t x, int16_t y) const {
        xcb_warp_pointer(painter->handle(), XCB_NONE, painter->root(), 0, 0, 0, 0, x, y);
        painter->sync();
    }

    /// A filled square of 16 pixels with its hot spot at (4, 4).
    void setCursor(xcb_window_t window, uint32_t colour) const {
        constexpr uint16_t kSize = 16;
        xcb_connection_t* const x = painter->handle();
        const xcb_pixmap_t shape = xcb_generate_id(x);
        const xcb_gcontext_t context = xcb_generate_id(x);
        const xcb_cursor_t cursor = xcb_generate_id(x);
        const uint32_t allSet = 1;
        const xcb_rectangle_t whole{0, 0, kSize, kSize};
        xcb_create_pixmap(x, 1, shape, painter->root(), kSize, kSize);
        xcb_create_gc(x, context, shape, XCB_GC_FOREGROUND, &allSet);
        xcb_poly_fill_rectangle(x, shape, context, 1, &whole);
        const auto channel = [colour](int shift) {
            return static_cast<uint16_t>((colour >> shift & 0xff) * 0x101);
        };
        xcb_create_cursor(x, cursor, shape, shape, channel(16), channel(8), channel(0), 0, 0, 0, 4,
                          4);
        xcb_change_window_attributes(x, window, XCB_CW_CURSOR, &cursor);
        painter->sync();
    }

    bool capture() {
        frame = backend.captureFrame();
        return frame != nullptr;
    }

    uint32_t pixelAt(int x, int y) const {
        const uint8_t* const pixel = frame->data.data() + y * frame->stride + x * 4;
        return static_cast<uint32_t>(pixel[2] << 16 | pixel[1] << 8 | pixel[0]);
    }

    QSize frameSize() const { return {frame->width, frame->height}; }

    std::unique_ptr<test::XvfbServer> server;
    test::LogCapture log;
    std::unique_ptr<test::XClient> painter;
    XcbCaptureBackend backend;
    std::unique_ptr<CapturedFrame> frame;
};

TEST_F(XcbCaptureBackendTest, WaitsForTheServerToReportAChange) {
    using namespace std::chrono_literals;
    ASSERT_TRUE(backend.initialize(0));
    while (capture()) {
    }
    EXPECT_EQ(backend.waitForChange(20ms), ScreenWait::Nothing);
    painter->showWindow({100, 50, 60, 40}, kRed);
    EXPECT_EQ(backend.waitForChange(10s), ScreenWait::MayHaveChanged);
    EXPECT_EQ(backend.waitForChange(10s), ScreenWait::MayHaveChanged) << "it has not been seen yet";
    EXPECT_TRUE(capture());
    EXPECT_EQ(backend.waitForChange(20ms), ScreenWait::Nothing);
    server.reset();
    EXPECT_EQ(backend.waitForChange(10s), ScreenWait::MayHaveChanged);
    EXPECT_FALSE(capture());
    EXPECT_EQ(backend.waitForChange(10s), ScreenWait::Unsupported);
}

TEST_F(XcbCaptureBackendTest, DeliversPixelsAndOnlyWhenTheyChange) {
    painter->showWindow({100, 50, 60, 40}, kRed);
    ASSERT_TRUE(backend.initialize(0));
    ASSERT_TRUE(capture());
    EXPECT_EQ(frameSize(), QSize(640, 480));
    EXPECT_EQ(frame->data.size(), static_cast<size_t>(frame->stride * frame->height));
    EXPECT_TRUE(frame->dirtyRects.empty());
    for (const auto& [x, y, colour] :
         {std::tuple{100, 50, kRed}, {159, 89, kRed}, {99, 50, 0U}, {160, 89, 0U}, {100, 90, 0U}}) {
        EXPECT_EQ(pixelAt(x, y), colour) << x << "," << y;
    }
    EXPECT_FALSE(capture());
    EXPECT_FALSE(capture());

    painter->showWindow({300, 200, 20, 10}, kGreen);
    ASSERT_TRUE(capture());
    EXPECT_EQ(pixelAt(310, 205), kGreen);
    EXPECT_EQ(pixelAt(130, 70), kRed);
    EXPECT_EQ(frame->dirtyRects, (std::vector<FrameRect>{{300, 200, 320, 210}}));
    EXPECT_FALSE(capture());
}

TEST_F(XcbCaptureBackendTest, DrawsThePointerWhereTheUserSeesIt) {
    const xcb_window_t window = painter->showWindow({0, 0, 640, 480}, kRed);
    setCursor(window, kGreen);
    warpPointer(200, 100);
    ASSERT_TRUE(backend.initialize(0));
    ASSERT_TRUE(capture());
    EXPECT_EQ(pixelAt(196, 96), kGreen);
    EXPECT_EQ(pixelAt(211, 111), kGreen);
    EXPECT_EQ(pixelAt(195, 96), kRed);
    EXPECT_EQ(pixelAt(212, 111), kRed);
    EXPECT_FALSE(capture());

    warpPointer(0, 0);
    ASSERT_TRUE(capture());
    EXPECT_EQ(pixelAt(0, 0), kGreen);
    EXPECT_EQ(pixelAt(11, 11), kGreen);
    EXPECT_EQ(pixelAt(200, 100), kRed) << "the pointer left a trail";
    EXPECT_EQ(frame->dirtyRects.size(), 2U);

    setCursor(window, 0x3232fa);
    ASSERT_TRUE(capture());
    EXPECT_EQ(pixelAt(5, 5), 0x3232faU);
}

TEST_F(XcbCaptureBackendTest, CapturesASecondMonitorAndFollowsIt) {
    painter->setMonitor("right", {320, 100, 200, 150});
    painter->showWindow({330, 120, 10, 10}, kGreen);
    const auto monitors = backend.monitors();
    const auto right = std::find_if(monitors.begin(), monitors.end(),
                                    [](const auto& monitor) { return monitor.name == "right"; });
    ASSERT_NE(right, monitors.end());
    EXPECT_EQ(QRect(right->x, right->y, right->width, right->height), QRect(320, 100, 200, 150));
    ASSERT_TRUE(backend.initialize(static_cast<int>(right->index)));
    EXPECT_EQ(backend.currentMonitor().name, "right");
    ASSERT_TRUE(capture());
    EXPECT_EQ(frameSize(), QSize(200, 150));
    EXPECT_EQ(pixelAt(10, 20), kGreen);

    // Neither drawing nor pointer elsewhere on the screen concern this monitor.
    painter->showWindow({0, 0, 50, 50}, kRed);
    warpPointer(20, 20);
    EXPECT_FALSE(capture());
    painter->showWindow({310, 240, 40, 40}, kRed);
    ASSERT_TRUE(capture());
    EXPECT_EQ(frame->dirtyRects, (std::vector<FrameRect>{{0, 140, 30, 150}}));

    painter->deleteMonitor("right");
    painter->setMonitor("right", {300, 100, 240, 160});
    ASSERT_TRUE(capture());
    EXPECT_EQ(frameSize(), QSize(240, 160));
    EXPECT_EQ(pixelAt(30, 20), kGreen);

    painter->deleteMonitor("right");
    EXPECT_FALSE(capture());
    EXPECT_FALSE(backend.isInitialized());
    EXPECT_TRUE(log.once("warning|XcbCaptureBackend: monitor 'right' is gone"));
}

TEST_F(XcbCaptureBackendTest, ManagesWithoutExtensions) {
    QStringList arguments;
    for (const char* name : {"MIT-SHM", "RANDR", "DAMAGE", "XFIXES"}) {
        arguments << u"-extension"_s << QLatin1String(name);
    }
    startServer(arguments);
    painter->showWindow({100, 50, 60, 40}, kRed);
    ASSERT_TRUE(backend.initialize(0));
    EXPECT_TRUE(log.contains("(640x480) [no shared memory]"));
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(capture()) << "nothing tells whether something changed";
        EXPECT_EQ(pixelAt(159, 89), kRed);
        EXPECT_EQ(pixelAt(160, 90), 0U);
    }
}

TEST_F(XcbCaptureBackendTest, RefusesMissingMonitorsAndOtherPixelFormats) {
    for (const int index : {-1, 1}) {
        EXPECT_FALSE(backend.initialize(index));
        EXPECT_FALSE(backend.isInitialized());
        EXPECT_FALSE(capture());
    }
    startServer({u"-screen"_s, u"0"_s, u"640x480x16"_s});
    EXPECT_FALSE(backend.initialize(0));
    EXPECT_TRUE(
        log.once("error|XcbCaptureBackend: unsupported screen format (depth 16, 16 bits per "
                 "pixel)"));
}

TEST_F(XcbCaptureBackendTest, LosesADeadServerAndComesBackOnAnother) {
    ASSERT_TRUE(backend.initialize(0));
    ASSERT_TRUE(capture());
    painter.reset();
    server.reset();
    EXPECT_FALSE(capture());
    EXPECT_FALSE(backend.isInitialized());
    EXPECT_TRUE(backend.monitors().empty());
    EXPECT_FALSE(backend.initialize(0));
    EXPECT_TRUE(log.once("error|XcbCaptureBackend: cannot connect to the X server"));

    startServer({});
    EXPECT_TRUE(backend.initialize(static_cast<int>(backend.currentMonitor().index)));
    EXPECT_TRUE(capture());
    const auto candidates = captureBackendCandidates();
    ASSERT_EQ(candidates.size(), 1U);
    EXPECT_TRUE(candidates[0].create()->initialize(0));
}

} // namespace
} // namespace corvane
