#include "media/windows/GdiCaptureBackend.h"
#include "common/MonotonicClock.h"
#include "support/LogCapture.h"

#include <QTest>
#include <gmock/gmock.h>

namespace corvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr uint32_t kRgbMask = 0xFFFFFF;

/// A window of one colour above all others.
class ColoredWindow {
public:
    ColoredWindow(const RECT& place, COLORREF colour) : m_brush(CreateSolidBrush(colour)) {
        m_window =
            CreateWindowExA(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, "STATIC", "", WS_POPUP | WS_VISIBLE,
                            place.left, place.top, place.right - place.left,
                            place.bottom - place.top, nullptr, nullptr, nullptr, nullptr);
        ShowWindow(m_window, SW_SHOWNOACTIVATE);
        paint();
    }
    ~ColoredWindow() {
        DestroyWindow(m_window);
        DeleteObject(m_brush);
    }
    ColoredWindow(const ColoredWindow&) = delete;
    ColoredWindow& operator=(const ColoredWindow&) = delete;

    void paint() const {
        const HDC context = GetDC(m_window);
        RECT area;
        GetClientRect(m_window, &area);
        FillRect(context, &area, m_brush);
        ReleaseDC(m_window, context);
        GdiFlush();
    }

private:
    HBRUSH m_brush;
    HWND m_window;
};

/// The pixel as 0xRRGGBB.
uint32_t pixelAt(const CapturedFrame& frame, int32_t x, int32_t y) {
    uint32_t pixel = 0;
    std::memcpy(&pixel, frame.data.data() + static_cast<ptrdiff_t>(y) * frame.stride + 4 * x,
                sizeof(pixel));
    return pixel & kRgbMask;
}

TEST(GdiCaptureBackendTest, WindowsAreSeenInTheirPlaceAndColour) {
    const test::LogCapture log;
    const ColoredWindow red({100, 100, 180, 150}, RGB(250, 20, 30));
    const ColoredWindow blue({180, 150, 300, 200}, RGB(10, 40, 240));
    GdiCaptureBackend backend({.getCursorInfo = [](CURSORINFO*) -> WINBOOL {
        return FALSE;
    }});
    const auto monitors = backend.monitors();
    ASSERT_FALSE(monitors.empty());
    const auto primary =
        std::find_if(monitors.begin(), monitors.end(), [](const auto& m) { return m.primary; });
    ASSERT_NE(primary, monitors.end());
    ASSERT_TRUE(backend.initialize(static_cast<int>(primary->index)));
    EXPECT_EQ(log.lines().back(),
              fmt::format("info|GdiCaptureBackend: initialized on monitor {} '{}' ({}x{}) "
                          "[GDI fallback]",
                          primary->index, primary->name, GetSystemMetrics(SM_CXSCREEN),
                          GetSystemMetrics(SM_CYSCREEN)));
    std::unique_ptr<CapturedFrame> frame;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        red.paint();
        blue.paint();
        frame = backend.captureFrame();
        return frame && pixelAt(*frame, 100, 100) == 0xFA141E &&
               pixelAt(*frame, 299, 199) == 0x0A28F0;
    }));
    EXPECT_EQ(pixelAt(*frame, 179, 149), 0xFA141EU);
    EXPECT_EQ(pixelAt(*frame, 180, 150), 0x0A28F0U);
    EXPECT_EQ(frame->stride, 4 * frame->width);
    EXPECT_EQ(frame->data.size(), static_cast<size_t>(frame->stride * frame->height));
    EXPECT_LT(monotonicMilliseconds() - frame->timestamp, 10'000U);
    EXPECT_THAT(frame->dirtyRects, IsEmpty());
    EXPECT_FALSE(frame->keyframeRequested);
}

/// Two monitors, the second left of the first, on GDI whose calls are counted and can fail.
class ScriptedGdi : public ::testing::Test {
protected:
    struct Place {
        RECT rect;
        DWORD flags;
        const char* name;
    };

    GdiFunctions script() {
        return {
            .enumDisplayMonitors = [this](HDC context, LPCRECT clip, MONITORENUMPROC visit,
                                          LPARAM data) -> WINBOOL {
                EXPECT_EQ(context, nullptr);
                EXPECT_EQ(clip, nullptr);
                for (size_t i = 0; i < places.size(); ++i) {
                    visit(reinterpret_cast<HMONITOR>(i + 1), nullptr, &places[i].rect, data);
                }
                return TRUE;
            },
            .getMonitorInfo = [this](HMONITOR monitor, MONITORINFO* info) -> WINBOOL {
                EXPECT_EQ(info->cbSize, 72U);
                const Place& place = places[reinterpret_cast<size_t>(monitor) - 1];
                info->rcMonitor = place.rect;
                info->dwFlags = place.flags;
                std::strcpy(reinterpret_cast<MONITORINFOEXA*>(info)->szDevice, place.name);
                return failing != "GetMonitorInfoA";
            },
            .getDc = [this](HWND window) { return made("GetDC", GetDC(window)); },
            .releaseDc = [this](HWND window,
                                HDC context) { return --alive, ReleaseDC(window, context); },
            .createCompatibleDc =
                [this](HDC context) {
                    return made("CreateCompatibleDC", CreateCompatibleDC(context));
                },
            .deleteDc = [this](HDC context) { return --alive, DeleteDC(context); },
            .createDibSection =
                [this](HDC context, const BITMAPINFO* info, UINT usage, void** bits, HANDLE section,
                       DWORD offset) {
                    return made("CreateDIBSection",
                                CreateDIBSection(context, info, usage, bits, section, offset));
                },
            .deleteObject = [this](HGDIOBJ object) { return --alive, DeleteObject(object); },
            .bitBlt = [this](HDC, int x, int y, int width, int height, HDC, int fromX, int fromY,
                             DWORD operation) -> WINBOOL {
                blit = {x, y, width, height, fromX, fromY, static_cast<int>(operation)};
                return failing != "BitBlt";
            },
            .getDiBits =
                [this](HDC context, HBITMAP bitmap, UINT first, UINT count, void* bits,
                       BITMAPINFO* info, UINT usage) {
                    const int lines = GetDIBits(context, bitmap, first, count, bits, info, usage);
                    return failing == "GetDIBits" ? 0 : lines;
                },
            .getCursorInfo =
                [this](CURSORINFO* info) {
                    EXPECT_EQ(info->cbSize, 24U);
                    *info = cursor;
                    return cursorKnown;
                },
            .drawIcon = [this](HDC, int x, int y, HICON icon, int width, int height, UINT step,
                               HBRUSH, UINT flags) -> WINBOOL {
                EXPECT_EQ(icon, reinterpret_cast<HICON>(1));
                drawn = {x, y, width, height, static_cast<int>(step), static_cast<int>(flags)};
                return TRUE;
            },
        };
    }

    /// `handle`, or null when the call `name` is to fail.
    template <typename Handle>
    Handle made(const char* name, Handle handle) {
        if (failing == name) {
            return nullptr;
        }
        ++alive;
        return handle;
    }

    test::LogCapture log;
    std::vector<Place> places = {{{0, 0, 1280, 720}, MONITORINFOF_PRIMARY, "\\\\.\\DISPLAY1"},
                                 {{-1920, -40, 0, 1040}, 0, "\\\\.\\DISPLAY2"}};
    std::string failing;
    int alive = 0;
    WINBOOL cursorKnown = TRUE;
    CURSORINFO cursor = {24, CURSOR_SHOWING, reinterpret_cast<HCURSOR>(1), {-1900, 15}};
    std::vector<int> blit;
    std::vector<int> drawn;
    GdiCaptureBackend backend{script()};
};

TEST_F(ScriptedGdi, AMonitorLeftOfThePrimaryIsReadFromNegativePlaces) {
    ASSERT_TRUE(backend.initialize(1));
    EXPECT_EQ(log.lines().back(), "info|GdiCaptureBackend: initialized on monitor 1 "
                                  "'\\\\.\\DISPLAY2' (1920x1080) [GDI fallback]");
    const auto frame = backend.captureFrame();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->width, 1920);
    EXPECT_EQ(frame->height, 1080);
    EXPECT_THAT(blit, ElementsAre(0, 0, 1920, 1080, -1920, -40, 0x00CC0020));
    EXPECT_THAT(drawn, ElementsAre(20, 55, 0, 0, 0, 3));
    const MonitorInfo monitor = backend.currentMonitor();
    EXPECT_EQ(monitor.index, 1U);
    EXPECT_EQ(monitor.x, -1920);
    EXPECT_EQ(monitor.y, -40);
    EXPECT_FALSE(monitor.primary);
    EXPECT_TRUE(backend.monitors()[0].primary);
}

TEST_F(ScriptedGdi, AHiddenPointerIsNotDrawn) {
    ASSERT_TRUE(backend.initialize(1));
    for (const DWORD flags : {0U, 2U}) { // put away by a program, by touch input
        cursor.flags = flags;
        EXPECT_TRUE(backend.captureFrame());
    }
    cursor.flags = CURSOR_SHOWING;
    const HCURSOR shape = std::exchange(cursor.hCursor, nullptr);
    EXPECT_TRUE(backend.captureFrame());
    cursor.hCursor = shape;
    cursorKnown = FALSE;
    EXPECT_TRUE(backend.captureFrame());
    EXPECT_THAT(drawn, IsEmpty());
}

TEST_F(ScriptedGdi, UnusableMonitorsAreRefused) {
    for (const int index : {2, -1}) {
        EXPECT_FALSE(backend.initialize(index));
        EXPECT_TRUE(log.once("error|GdiCaptureBackend: monitor index " + std::to_string(index) +
                             " not found (have 2 monitors)"));
    }
    places[1].rect.right = -1920;
    EXPECT_FALSE(backend.initialize(1));
    EXPECT_TRUE(log.once("error|GdiCaptureBackend: invalid monitor dimensions 0x1080"));
    failing = "GetMonitorInfoA";
    EXPECT_FALSE(backend.initialize(0));
    EXPECT_TRUE(log.once("error|GdiCaptureBackend: invalid monitor dimensions 0x0"));
    EXPECT_EQ(backend.captureFrame(), nullptr);
}

TEST_F(ScriptedGdi, FailingCallsOfInitializeLeaveNothingBehind) {
    for (const char* call : {"GetDC", "CreateCompatibleDC", "CreateDIBSection"}) {
        failing = call;
        log.clear();
        EXPECT_FALSE(backend.initialize(0));
        EXPECT_THAT(log.lines(),
                    ElementsAre(fmt::format("error|GdiCaptureBackend: {} failed", call)));
        EXPECT_FALSE(backend.isInitialized());
        EXPECT_EQ(alive, 0);
    }
    failing.clear();
    EXPECT_TRUE(backend.initialize(0));
    EXPECT_TRUE(backend.initialize(1));
    EXPECT_EQ(alive, 3);
    backend.shutdown();
    EXPECT_EQ(alive, 0);
    EXPECT_FALSE(backend.isInitialized());
}

TEST_F(ScriptedGdi, AFailingCopyCostsTheRoundOnly) {
    ASSERT_TRUE(backend.initialize(0));
    for (const char* call : {"BitBlt", "GetDIBits"}) {
        failing = call;
        log.clear();
        EXPECT_EQ(backend.captureFrame(), nullptr);
        EXPECT_THAT(log.lines(),
                    ElementsAre(fmt::format("warning|GdiCaptureBackend: {} failed", call)));
        EXPECT_TRUE(backend.isInitialized());
    }
    failing.clear();
    EXPECT_TRUE(backend.captureFrame());
}

} // namespace
} // namespace corvane
