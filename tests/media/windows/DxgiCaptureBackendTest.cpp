#include "media/windows/DxgiCaptureBackend.h"
#include "ScriptedDesktop.h"
#include "media/CaptureBackendCandidate.h"
#include "support/LogCapture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace corvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What the whole of `desktop` looks like in a frame.
ByteVector picture(const test::ScriptedDesktop& desktop) {
    ByteVector bytes;
    for (size_t row = 0; row < desktop.height; ++row) {
        for (size_t column = 0; column < desktop.width * 4; ++column) {
            bytes.push_back(test::ScriptedDesktop::pixelByte(row, column));
        }
    }
    return bytes;
}

class DxgiCaptureBackendTest : public ::testing::Test {
protected:
    void TearDown() override {
        backend.shutdown();
        EXPECT_EQ(desktop.objects, 0);
        EXPECT_EQ(desktop.framesHeld, 0);
        EXPECT_EQ(desktop.texturesMapped, 0);
    }

    DxgiFunctions dxgi() {
        return {
            .createDevice =
                [this](IDXGIAdapter*, D3D_DRIVER_TYPE, HMODULE, UINT, const D3D_FEATURE_LEVEL*,
                       UINT, UINT, ID3D11Device** device, D3D_FEATURE_LEVEL* level,
                       ID3D11DeviceContext** context) {
                    const HRESULT result = desktop.resultOf("D3D11CreateDevice");
                    if (SUCCEEDED(result)) {
                        *device = static_cast<ID3D11Device*>(desktop.newDevice());
                        *context = static_cast<ID3D11DeviceContext*>(desktop.newContext());
                        *level = D3D_FEATURE_LEVEL_11_0;
                    }
                    return result;
                },
            .createFactory =
                [this](REFIID, void** factory) {
                    const HRESULT result = desktop.resultOf("CreateDXGIFactory1");
                    *factory = SUCCEEDED(result) ? desktop.newFactory() : nullptr;
                    return result;
                },
        };
    }

    GdiFunctions gdi() {
        return {.getCursorInfo = [this](CURSORINFO* info) -> WINBOOL {
            info->flags = cursorShown ? CURSOR_SHOWING : 0;
            info->hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
            info->ptScreenPos = cursorPlace;
            return TRUE;
        }};
    }

    test::LogCapture log;
    test::ScriptedDesktop desktop;
    bool cursorShown = false;
    POINT cursorPlace = {};
    DxgiCaptureBackend backend{dxgi(), gdi()};
};

TEST_F(DxgiCaptureBackendTest, FramesAreCopiedRowByRowWithoutPadding) {
    ASSERT_TRUE(backend.initialize(0));
    for (const UINT pitch : {16U, 64U}) {
        desktop.rowPitch = pitch;
        const auto frame = backend.captureFrame();
        ASSERT_TRUE(frame);
        EXPECT_EQ(frame->width, 4);
        EXPECT_EQ(frame->height, 3);
        EXPECT_EQ(frame->stride, 16);
        EXPECT_FALSE(frame->keyframeRequested);
        EXPECT_EQ(frame->data, picture(desktop));
        EXPECT_EQ(desktop.framesHeld, 0);
    }
    EXPECT_EQ(desktop.acquireTimeout, 100U);
    EXPECT_EQ(desktop.stagingTextures.size(), 1U);
}

TEST_F(DxgiCaptureBackendTest, EachFailingCallOfInitializeIsNamed) {
    for (const std::string call :
         {"D3D11CreateDevice", "IDXGIDevice", "GetAdapter", "CreateDXGIFactory1", "GetDesc",
          "IDXGIOutput1", "DuplicateOutput"}) {
        desktop.failures = {{call, E_ACCESSDENIED}};
        log.clear();
        EXPECT_FALSE(backend.initialize(0));
        EXPECT_FALSE(backend.isInitialized());
        EXPECT_EQ(backend.captureFrame(), nullptr);
        EXPECT_EQ(desktop.objects, 0) << call;
        const bool isQuery = call.starts_with("IDXGI");
        EXPECT_TRUE(log.once("error|DxgiCaptureBackend: " +
                             (isQuery ? "QueryInterface " + call : call) + " failed (0x80070005)"))
            << call;
    }
}

TEST_F(DxgiCaptureBackendTest, MonitorsAreTheOutputsOfAllAdapters) {
    desktop.adapters = {{{0, 0, 4, 3}, {-8, 1, 0, 7}}, {}, {{4, 0, 9, 9}}};
    const auto monitors = backend.monitors();
    ASSERT_EQ(monitors.size(), 3U);
    EXPECT_EQ(monitors[0].name, "\\\\.\\DISPLAY1");
    EXPECT_TRUE(monitors[0].primary);
    EXPECT_EQ(monitors[1].x, -8);
    EXPECT_EQ(monitors[1].width, 8);
    EXPECT_EQ(monitors[2].height, 9);
    EXPECT_FALSE(monitors[2].primary);
    ASSERT_TRUE(backend.initialize(2));
    EXPECT_EQ(backend.currentMonitor().name, monitors[2].name);
    for (const int index : {3, -1}) {
        EXPECT_FALSE(backend.initialize(index));
    }
    desktop.failures = {{"CreateDXGIFactory1", E_FAIL}};
    EXPECT_THAT(backend.monitors(), IsEmpty());
}

TEST_F(DxgiCaptureBackendTest, EachFailingCallOfACaptureCostsOneFrame) {
    ASSERT_TRUE(backend.initialize(0));
    log.clear();
    desktop.acquisitions = {DXGI_ERROR_WAIT_TIMEOUT};
    EXPECT_EQ(backend.captureFrame(), nullptr);
    EXPECT_THAT(log.lines(), IsEmpty()) << "an unchanged screen is no failure";
    desktop.dirtyRects = {{0, 0, 1, 1}};
    for (const char* call : {"ID3D11Texture2D", "CreateTexture2D", "Map"}) {
        desktop.failures = {{call, E_FAIL}};
        EXPECT_EQ(backend.captureFrame(), nullptr);
        EXPECT_TRUE(log.lines().back().ends_with(" failed (0x80004005)")) << call;
        EXPECT_TRUE(backend.isInitialized());
    }
    desktop.failures.clear();
    desktop.acquisitions = {DXGI_ERROR_DEVICE_REMOVED};
    EXPECT_EQ(backend.captureFrame(), nullptr);
    const auto frame = backend.captureFrame();
    ASSERT_TRUE(frame);
    EXPECT_THAT(frame->dirtyRects, IsEmpty()) << "changes of the lost frames are unknown";
}

TEST_F(DxgiCaptureBackendTest, LostAccessIsRegainedFiveTimes) {
    desktop.adapters = {{{0, 0, 4, 3}, {4, 0, 8, 3}}};
    ASSERT_TRUE(backend.initialize(1));
    for (int attempt = 1; attempt <= 6; ++attempt) {
        desktop.acquisitions = {DXGI_ERROR_ACCESS_LOST};
        EXPECT_EQ(backend.captureFrame(), nullptr);
        EXPECT_EQ(desktop.duplications, std::min(attempt, 5) + 1);
        EXPECT_EQ(backend.captureFrame() != nullptr, attempt <= 5);
        EXPECT_EQ(backend.isInitialized(), attempt <= 5);
    }
    EXPECT_TRUE(log.once("error|DxgiCaptureBackend: max reinitialization attempts (5) exceeded"));
    EXPECT_EQ(backend.currentMonitor().index, 1U);
    for (const bool fails : {true, false}) { // five more after an initialization
        ASSERT_TRUE(backend.initialize(1));
        desktop.acquisitions = {DXGI_ERROR_ACCESS_LOST};
        desktop.failures = {{"DuplicateOutput", fails ? E_ACCESSDENIED : S_OK}};
        EXPECT_EQ(backend.captureFrame(), nullptr);
        EXPECT_EQ(backend.isInitialized(), !fails);
        desktop.failures.clear();
    }
}

TEST_F(DxgiCaptureBackendTest, AChangedResolutionIsFollowed) {
    ASSERT_TRUE(backend.initialize(0));
    EXPECT_TRUE(backend.captureFrame());
    desktop.width = 7;
    desktop.height = 2;
    desktop.rowPitch = 32;
    desktop.adapters = {{{0, 0, 7, 2}}};
    desktop.dirtyRects = {{0, 0, 1, 1}};
    desktop.acquisitions = {DXGI_ERROR_ACCESS_LOST};
    EXPECT_EQ(backend.captureFrame(), nullptr);
    const auto frame = backend.captureFrame();
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->stride, 28);
    EXPECT_EQ(frame->data, picture(desktop));
    EXPECT_THAT(frame->dirtyRects, IsEmpty());
    EXPECT_EQ(backend.currentMonitor().width, 7);
    EXPECT_EQ(desktop.stagingTextures.back().right, 7);
    EXPECT_EQ(backend.captureFrame()->dirtyRects.size(), 1U);
    EXPECT_EQ(desktop.stagingTextures.size(), 2U);
}

TEST_F(DxgiCaptureBackendTest, ChangesAreDirtyRectanglesAndWhereThingsMovedTo) {
    ASSERT_TRUE(backend.initialize(0));
    desktop.dirtyRects = {{0, 0, 1, 2}, {1, 1, 2, 2}};
    desktop.moveTargets = {{2, 0, 4, 3}};
    EXPECT_THAT(backend.captureFrame()->dirtyRects, IsEmpty()) << "the first frame is whole";
    EXPECT_THAT(backend.captureFrame()->dirtyRects,
                ElementsAre(FrameRect{0, 0, 1, 2}, FrameRect{1, 1, 2, 2}, FrameRect{2, 0, 4, 3}));
    for (const char* call : {"GetFrameDirtyRects", "GetFrameMoveRects"}) {
        desktop.failures = {{call, DXGI_ERROR_MORE_DATA}};
        const auto frame = backend.captureFrame();
        ASSERT_TRUE(frame);
        EXPECT_THAT(frame->dirtyRects, IsEmpty());
    }
}

TEST_F(DxgiCaptureBackendTest, ThePointerIsDrawnRelativeToTheMonitor) {
    desktop.adapters = {{{-600, 50, -100, 450}}};
    desktop.width = 500;
    desktop.height = 400;
    desktop.rowPitch = 2048;
    ASSERT_TRUE(backend.initialize(0));
    const ByteVector bare = backend.captureFrame()->data;
    int drawnPixels = 0;
    cursorShown = true;
    cursorPlace = {-600 + 40, 50 + 30};
    desktop.dirtyRects = {{0, 0, 1, 1}};
    const auto frame = backend.captureFrame();
    ASSERT_TRUE(frame);
    for (size_t offset = 0; offset < bare.size(); offset += 4) {
        const size_t x = offset / 4 % 500;
        const size_t y = offset / 4 / 500;
        const bool drawn = std::memcmp(&bare[offset], &frame->data[offset], 3) != 0;
        const bool inside = x >= 40 && x < 40 + 64 && y >= 30 && y < 30 + 64;
        ASSERT_TRUE(inside || !drawn) << x << ", " << y;
        drawnPixels += drawn ? 1 : 0;
    }
    EXPECT_GT(drawnPixels, 20);
    const FrameRect around = {40, 30, 296, 286};
    EXPECT_THAT(frame->dirtyRects, ElementsAre(FrameRect{0, 0, 1, 1}, around));

    cursorPlace = {-600 + 300, 50 - 300};
    EXPECT_THAT(backend.captureFrame()->dirtyRects, ElementsAre(FrameRect{0, 0, 1, 1}, around));
    EXPECT_THAT(backend.captureFrame()->dirtyRects, ElementsAre(FrameRect{0, 0, 1, 1}));
}

TEST(CaptureBackendCandidates, TheLastOneWorksWhereverThereIsADesktop) {
    EXPECT_TRUE(captureBackendCandidates().back().create()->initialize(0));
}

} // namespace
} // namespace corvane
