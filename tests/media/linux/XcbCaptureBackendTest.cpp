#include "linux/XcbCaptureBackend.h"
#include "CaptureBackendCandidate.h"
#include "LogCapture.h"
#include "XvfbServer.h"
#include "linux/X11Connection.h"
#include "linux/XcbReply.h"

#include <gtest/gtest.h>
#include <xcb/randr.h>
#include <xcb/xcbext.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace corvane {
namespace {

constexpr QSize kScreen(640, 480);
constexpr uint32_t kRed = 0xc81e0a;
constexpr uint32_t kGreen = 0x14b428;

struct Rect {
    int16_t x, y;
    uint16_t width, height;
};

uint32_t pixelAt(const CapturedFrame& frame, int x, int y) {
    const uint8_t* const pixel = frame.data.data() + y * frame.stride + x * 4;
    return static_cast<uint32_t>(pixel[2] << 16 | pixel[1] << 8 | pixel[0]);
}

/// Another program on the same display.
class Painter {
public:
    Painter() : m_x(X11Connection::open()) { warpPointer(600, 440); }

    xcb_connection_t* handle() const { return m_x->handle(); }
    xcb_window_t root() const { return m_x->root(); }

    /// Waits until the server has done everything asked for so far.
    void sync() const {
        const XcbReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(handle(), xcb_get_input_focus(handle()), nullptr));
    }

    xcb_window_t showWindow(const Rect& area, uint32_t colour) const {
        const xcb_window_t window = xcb_generate_id(handle());
        const uint32_t values[] = {colour, 1};
        xcb_create_window(handle(), XCB_COPY_FROM_PARENT, window, root(), area.x, area.y,
                          area.width, area.height, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                          XCB_COPY_FROM_PARENT, XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT,
                          values);
        xcb_map_window(handle(), window);
        sync();
        return window;
    }

    /// A filled square of 16 pixels with its hot spot at (4, 4).
    void setCursor(xcb_window_t window, uint32_t colour) const {
        constexpr uint16_t kSize = 16;
        const xcb_pixmap_t shape = xcb_generate_id(handle());
        const xcb_gcontext_t context = xcb_generate_id(handle());
        const xcb_cursor_t cursor = xcb_generate_id(handle());
        const uint32_t allSet = 1;
        const xcb_rectangle_t whole{0, 0, kSize, kSize};
        xcb_create_pixmap(handle(), 1, shape, root(), kSize, kSize);
        xcb_create_gc(handle(), context, shape, XCB_GC_FOREGROUND, &allSet);
        xcb_poly_fill_rectangle(handle(), shape, context, 1, &whole);
        const auto channel = [colour](int shift) {
            return static_cast<uint16_t>((colour >> shift & 0xff) * 0x101);
        };
        xcb_create_cursor(handle(), cursor, shape, shape, channel(16), channel(8), channel(0), 0, 0,
                          0, 4, 4);
        xcb_change_window_attributes(handle(), window, XCB_CW_CURSOR, &cursor);
        sync();
    }

    void warpPointer(int16_t x, int16_t y) const {
        xcb_warp_pointer(handle(), XCB_NONE, root(), 0, 0, 0, 0, x, y);
        sync();
    }

    void setMonitor(const char* name, const Rect& area) const {
        // The library's own function for this request passes a length it never sets.
        xcb_randr_set_monitor_request_t request{};
        request.window = root();
        xcb_randr_monitor_info_t info{};
        info.name = atom(name);
        info.x = area.x;
        info.y = area.y;
        info.width = area.width;
        info.height = area.height;
        iovec parts[] = {{}, {}, {&request, sizeof(request)}, {&info, sizeof(info)}};
        const xcb_protocol_request_t protocol{2, &xcb_randr_id, XCB_RANDR_SET_MONITOR, 1};
        xcb_send_request(handle(), 0, parts + 2, &protocol);
        sync();
    }

    void deleteMonitor(const char* name) const {
        xcb_randr_delete_monitor(handle(), root(), atom(name));
        sync();
    }

private:
    xcb_atom_t atom(const char* name) const {
        const auto length = static_cast<uint16_t>(std::strlen(name));
        const XcbReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(handle(), xcb_intern_atom(handle(), 0, length, name), nullptr));
        return reply ? reply->atom : XCB_NONE;
    }

    std::unique_ptr<X11Connection> m_x;
};

class XcbCaptureBackendTest : public ::testing::Test {
protected:
    void SetUp() override { startServer({}); }

    void startServer(const QStringList& arguments) {
        painter.reset();
        server.reset();
        server = std::make_unique<test::XvfbServer>(kScreen, arguments);
        ASSERT_TRUE(server->isRunning());
        server->use();
        painter = std::make_unique<Painter>();
    }

    std::unique_ptr<CapturedFrame> capture() { return backend.captureFrame(); }

    std::unique_ptr<test::XvfbServer> server;
    test::LogCapture log;
    std::unique_ptr<Painter> painter;
    XcbCaptureBackend backend;
};

TEST_F(XcbCaptureBackendTest, DeliversPixelsAndOnlyWhenTheyChange) {
    painter->showWindow({100, 50, 60, 40}, kRed);
    ASSERT_TRUE(backend.initialize(0));
    auto frame = capture();
    ASSERT_TRUE(frame);
    EXPECT_EQ(std::pair(frame->width, frame->height), std::pair(640, 480));
    EXPECT_EQ(frame->data.size(), static_cast<size_t>(frame->stride * frame->height));
    EXPECT_TRUE(frame->dirtyRects.empty());
    for (const auto& [x, y, colour] :
         {std::tuple{100, 50, kRed}, {159, 89, kRed}, {99, 50, 0U}, {160, 89, 0U}, {100, 90, 0U}}) {
        EXPECT_EQ(pixelAt(*frame, x, y), colour) << x << "," << y;
    }
    EXPECT_FALSE(capture());
    EXPECT_FALSE(capture());

    painter->showWindow({300, 200, 20, 10}, kGreen);
    frame = capture();
    ASSERT_TRUE(frame);
    EXPECT_EQ(pixelAt(*frame, 310, 205), kGreen);
    EXPECT_EQ(pixelAt(*frame, 130, 70), kRed);
    ASSERT_EQ(frame->dirtyRects.size(), 1U);
    const FrameRect& dirty = frame->dirtyRects[0];
    EXPECT_EQ((std::array{dirty.left, dirty.top, dirty.right, dirty.bottom}),
              (std::array{300, 200, 320, 210}));
    EXPECT_FALSE(capture());
}

TEST_F(XcbCaptureBackendTest, DrawsThePointerWhereTheUserSeesIt) {
    const xcb_window_t window = painter->showWindow({0, 0, 640, 480}, kRed);
    painter->setCursor(window, kGreen);
    painter->warpPointer(200, 100);
    ASSERT_TRUE(backend.initialize(0));
    auto frame = capture();
    ASSERT_TRUE(frame);
    EXPECT_EQ(pixelAt(*frame, 196, 96), kGreen);
    EXPECT_EQ(pixelAt(*frame, 211, 111), kGreen);
    EXPECT_EQ(pixelAt(*frame, 195, 96), kRed);
    EXPECT_EQ(pixelAt(*frame, 212, 111), kRed);
    EXPECT_FALSE(capture());

    painter->warpPointer(0, 0);
    frame = capture();
    ASSERT_TRUE(frame);
    EXPECT_EQ(pixelAt(*frame, 0, 0), kGreen);
    EXPECT_EQ(pixelAt(*frame, 11, 11), kGreen);
    EXPECT_EQ(pixelAt(*frame, 200, 100), kRed) << "the pointer left a trail";
    EXPECT_EQ(frame->dirtyRects.size(), 2U);

    painter->setCursor(window, 0x3232fa);
    frame = capture();
    ASSERT_TRUE(frame);
    EXPECT_EQ(pixelAt(*frame, 5, 5), 0x3232faU);
}

TEST_F(XcbCaptureBackendTest, CapturesASecondMonitorAndFollowsIt) {
    painter->setMonitor("right", {320, 100, 200, 150});
    painter->showWindow({330, 120, 10, 10}, kGreen);
    const auto monitors = backend.monitors();
    const auto right = std::find_if(monitors.begin(), monitors.end(),
                                    [](const auto& monitor) { return monitor.name == "right"; });
    ASSERT_NE(right, monitors.end());
    EXPECT_EQ((std::array{right->x, right->y, right->width, right->height}),
              (std::array{320, 100, 200, 150}));
    ASSERT_TRUE(backend.initialize(static_cast<int>(right->index)));
    EXPECT_EQ(backend.currentMonitor().name, "right");
    auto frame = capture();
    ASSERT_TRUE(frame);
    EXPECT_EQ(std::pair(frame->width, frame->height), std::pair(200, 150));
    EXPECT_EQ(pixelAt(*frame, 10, 20), kGreen);

    // Neither drawing nor pointer elsewhere on the screen concern this monitor.
    painter->showWindow({0, 0, 50, 50}, kRed);
    painter->warpPointer(20, 20);
    EXPECT_FALSE(capture());
    painter->showWindow({310, 240, 40, 40}, kRed);
    frame = capture();
    ASSERT_TRUE(frame);
    ASSERT_EQ(frame->dirtyRects.size(), 1U);
    const FrameRect& dirty = frame->dirtyRects[0];
    EXPECT_EQ((std::array{dirty.left, dirty.top, dirty.right, dirty.bottom}),
              (std::array{0, 140, 30, 150}));

    painter->deleteMonitor("right");
    painter->setMonitor("right", {300, 100, 240, 160});
    frame = capture();
    ASSERT_TRUE(frame);
    EXPECT_EQ(std::pair(frame->width, frame->height), std::pair(240, 160));
    EXPECT_EQ(pixelAt(*frame, 30, 20), kGreen);
    EXPECT_EQ(log.count("info|XcbCaptureBackend: resolution changed to 240x160"), 1);

    painter->deleteMonitor("right");
    EXPECT_FALSE(capture());
    EXPECT_FALSE(backend.isInitialized());
    EXPECT_EQ(log.count("warning|XcbCaptureBackend: monitor 'right' is gone"), 1);
}

TEST_F(XcbCaptureBackendTest, ManagesWithoutExtensions) {
    QStringList arguments;
    for (const char* name : {"MIT-SHM", "RANDR", "DAMAGE", "XFIXES"}) {
        arguments << QStringLiteral("-extension") << QLatin1String(name);
    }
    startServer(arguments);
    painter->showWindow({100, 50, 60, 40}, kRed);
    ASSERT_TRUE(backend.initialize(0));
    EXPECT_TRUE(log.contains("(640x480) [no shared memory]"));
    for (int round = 0; round < 2; ++round) {
        const auto frame = capture();
        ASSERT_TRUE(frame) << "nothing tells whether something changed";
        EXPECT_EQ(pixelAt(*frame, 159, 89), kRed);
        EXPECT_EQ(pixelAt(*frame, 160, 90), 0U);
    }
}

TEST_F(XcbCaptureBackendTest, RefusesOtherPixelFormats) {
    startServer({QStringLiteral("-screen"), QStringLiteral("0"), QStringLiteral("640x480x16")});
    EXPECT_FALSE(backend.initialize(0));
    EXPECT_EQ(log.count("error|XcbCaptureBackend: unsupported screen format (depth 16, 16 bits per "
                        "pixel)"),
              1);
}

TEST_F(XcbCaptureBackendTest, RefusesMonitorsThatAreNotThere) {
    for (const int index : {-1, 1}) {
        EXPECT_FALSE(backend.initialize(index));
        EXPECT_FALSE(backend.isInitialized());
        EXPECT_FALSE(capture());
        EXPECT_EQ(log.count("error|XcbCaptureBackend: monitor index " + std::to_string(index) +
                            " not found (have 1 monitors)"),
                  1);
    }
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
    EXPECT_EQ(log.count("error|XcbCaptureBackend: cannot connect to the X server"), 1);

    server = std::make_unique<test::XvfbServer>(kScreen);
    server->use();
    EXPECT_TRUE(backend.initialize(static_cast<int>(backend.currentMonitor().index)));
    EXPECT_TRUE(capture());
}

TEST_F(XcbCaptureBackendTest, IsThePlatformsOnlyCandidate) {
    const auto candidates = captureBackendCandidates();
    ASSERT_EQ(candidates.size(), 1U);
    EXPECT_TRUE(candidates[0].create()->initialize(0));
}

} // namespace
} // namespace corvane
