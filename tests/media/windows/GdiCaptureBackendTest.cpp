#include "media/windows/GdiCaptureBackend.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

namespace corvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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
    }
    places[1].rect.right = -1920;
    EXPECT_FALSE(backend.initialize(1));
    EXPECT_TRUE(log.once("error|GdiCaptureBackend: invalid monitor dimensions 0x1080"));
    failing = "GetMonitorInfoA";
    EXPECT_FALSE(backend.initialize(0));
    EXPECT_EQ(backend.captureFrame(), nullptr);
}

TEST_F(ScriptedGdi, FailingCallsOfInitializeLeaveNothingBehind) {
    for (const char* call : {"GetDC", "CreateCompatibleDC", "CreateDIBSection"}) {
        failing = call;
        EXPECT_FALSE(backend.initialize(0));
        EXPECT_TRUE(log.once(fmt::format("error|GdiCaptureBackend: {} failed", call)));
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
        EXPECT_EQ(backend.captureFrame(), nullptr);
        EXPECT_TRUE(log.once(fmt::format("warning|GdiCaptureBackend: {} failed", call)));
        EXPECT_TRUE(backend.isInitialized());
    }
    failing.clear();
    EXPECT_TRUE(backend.captureFrame());
}

} // namespace
} // namespace corvane
