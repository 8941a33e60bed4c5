#include "input/linux/XtestInputBackend.h"
#include "support/LogCapture.h"
#include "support/linux/XClient.h"
#include "x11/XcbEvent.h"
#include "xvfb/XvfbServer.h"

#include <QTest>
#include <gtest/gtest.h>

#include <limits>
#include <optional>

namespace corvane {
namespace {

using enum InputEventType;
using namespace Qt::StringLiterals;

constexpr QSize kScreen(1001, 501);

/// A screen with a program's window all over it that sees what input arrives.
class XtestInputBackendTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(server->isRunning());
        server->use();
        program.emplace();
        program->showWindow({QPoint(0, 0), kScreen}, 0,
                            XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_BUTTON_RELEASE |
                                XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_KEY_RELEASE);
        xcb_set_input_focus(program->handle(), XCB_INPUT_FOCUS_POINTER_ROOT,
                            XCB_INPUT_FOCUS_POINTER_ROOT, XCB_CURRENT_TIME);
        program->sync();
        ASSERT_TRUE(backend.initialize());
    }

    bool inject(InputEventType type, double x, double y, int button = 1, int16_t wheel = 0) {
        return backend.injectEvent({.type = type,
                                    .x = x,
                                    .y = y,
                                    .button = static_cast<MouseButton>(button),
                                    .wheelDelta = wheel});
    }

    bool injectKey(InputEventType type, uint32_t keyCode, uint32_t scanCode) {
        return backend.injectEvent({.type = type, .keyCode = keyCode, .scanCode = scanCode});
    }

    QPoint pointer() const {
        const XcbReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
            program->handle(), xcb_query_pointer(program->handle(), program->root()), nullptr));
        return reply ? QPoint(reply->root_x, reply->root_y) : QPoint(-1, -1);
    }

    /// What went down or up since the last call, e.g. "button 1 down, key 38 up".
    std::string takeEvents() const {
        program->sync();
        QStringList events;
        while (const XcbEvent event{xcb_poll_for_event(program->handle())}) {
            const int type = eventType(*event);
            if (type >= XCB_KEY_PRESS && type <= XCB_BUTTON_RELEASE) {
                const bool key = type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE;
                const bool down = type == XCB_KEY_PRESS || type == XCB_BUTTON_PRESS;
                const auto* input = reinterpret_cast<const xcb_key_press_event_t*>(event.get());
                events.append(u"%1 %2 %3"_s.arg(QLatin1String(key ? "key" : "button"))
                                  .arg(input->detail)
                                  .arg(QLatin1String(down ? "down" : "up")));
            }
        }
        return events.join(u", "_s).toStdString();
    }

    static std::string downAndUp(const char* what, int number) {
        const std::string name = what + (" " + std::to_string(number));
        return name + " down, " + name + " up";
    }

    test::LogCapture log;
    std::optional<test::XvfbServer> server{kScreen};
    std::optional<test::XClient> program;
    XtestInputBackend backend;
};

TEST_F(XtestInputBackendTest, FractionsSpanThePrimaryMonitorAndStayInsideIt) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const std::tuple<double, double, QPoint> cases[] = {
        {0.5, 0.25, {500, 125}},    {1.0, 1.0, {1000, 500}},
        {0.0, 0.0, {0, 0}},         {1.7, -0.2, {1000, 0}},
        {0.5, 0.5, {500, 250}},     {nan, nan, {0, 0}},
        {0.0015, 0.001, {2, 1}},    {infinity, infinity, {1000, 500}},
        {-infinity, 0.5, {0, 250}},
    };
    for (const auto& [x, y, pixel] : cases) {
        EXPECT_TRUE(inject(MouseMove, x, y));
        EXPECT_EQ(pointer(), pixel) << x << ", " << y;
    }
    program->setMonitor("test-monitor", {200, 100, 401, 201}, true);
    EXPECT_TRUE(QTest::qWaitFor([this] {
        inject(MouseMove, 1.0, 0.5);
        return pointer() == QPoint(600, 200);
    }));
}

TEST_F(XtestInputBackendTest, ButtonsGoDownAndUpWhereTheEventSays) {
    const int xButtons[] = {1, 3, 2, 8, 9};
    for (int button = 1; button <= 5; ++button) {
        const double x = 0.1 * button;
        EXPECT_TRUE(inject(MouseButtonPress, x, 0.5, button));
        EXPECT_TRUE(inject(MouseButtonRelease, x, 1.0, button));
        EXPECT_EQ(pointer(), QPoint(100 * button, 500));
        EXPECT_EQ(takeEvents(), downAndUp("button", xButtons[button - 1]));
    }
}

TEST_F(XtestInputBackendTest, WheelClicksOncePerNotchAndKeepsTheRest) {
    const std::tuple<int16_t, int, int> cases[] = {
        {120, 4, 1}, {-240, 5, 2}, {50, 4, 0}, {50, 4, 0},
        {50, 4, 1},  {-149, 5, 0}, {-1, 5, 1}, {32767, 4, 273},
    };
    for (const auto& [delta, button, clicks] : cases) {
        EXPECT_TRUE(inject(MouseWheel, 0.5, 0.5, 1, delta));
        std::string expected;
        for (int click = 0; click < clicks; ++click) {
            expected += (click == 0 ? "" : ", ") + downAndUp("button", button);
        }
        EXPECT_EQ(takeEvents(), expected) << delta;
    }
}

TEST_F(XtestInputBackendTest, KeysArriveUnderTheirKeycode) {
    const std::tuple<uint32_t, uint32_t, int> cases[] = {
        {'A', 0x1E, 38}, {0x25, 0x14B, 113}, {0x13, 0, 127}};
    for (const auto& [keyCode, scanCode, keycode] : cases) {
        EXPECT_TRUE(injectKey(KeyPress, keyCode, scanCode));
        EXPECT_TRUE(injectKey(KeyRelease, keyCode, scanCode));
        EXPECT_EQ(takeEvents(), downAndUp("key", keycode));
    }
}

TEST_F(XtestInputBackendTest, UnusableEventsAreNamedAndSendNothing) {
    inject(MouseMove, 0.5, 0.5);
    EXPECT_FALSE(inject(MouseButtonPress, 0.1, 0.1, 7));
    EXPECT_FALSE(inject(MouseButtonRelease, 0.1, 0.1, 0));
    EXPECT_FALSE(inject(static_cast<InputEventType>(9), 0.1, 0.1));
    EXPECT_FALSE(injectKey(KeyPress, 0xFE, 0x7F));
    EXPECT_EQ(pointer(), QPoint(500, 250));
    EXPECT_EQ(takeEvents(), "");
    for (const char* problem : {"mouse button 7", "mouse button 0", "event type 9",
                                "key, virtual key 0xFE, scan code 0x7F"}) {
        const std::string line = std::string("warning|XtestInputBackend: unknown ") + problem;
        EXPECT_TRUE(log.once(line)) << line;
    }
}

TEST_F(XtestInputBackendTest, ShutdownReleasesWhatIsHeldAndEndsInjection) {
    injectKey(KeyPress, 0xA2, 0x1D);
    inject(MouseButtonPress, 0.5, 0.5);
    EXPECT_EQ(takeEvents(), "key 37 down, button 1 down");
    backend.shutdown();
    EXPECT_EQ(takeEvents(), "button 1 up, key 37 up");
    EXPECT_FALSE(inject(MouseMove, 0.5, 0.5));
    EXPECT_TRUE(backend.initialize());
    EXPECT_TRUE(inject(MouseMove, 0.25, 0.0));
    EXPECT_EQ(pointer(), QPoint(250, 0));
}

TEST_F(XtestInputBackendTest, LostDisplayIsAWarning) {
    injectKey(KeyPress, 0xA2, 0x1D);
    program.reset();
    server.reset();
    EXPECT_FALSE(inject(MouseMove, 0.5, 0.5));
    EXPECT_TRUE(log.contains("warning|XtestInputBackend: XTEST (mouse move) failed"));
    backend.shutdown();
    EXPECT_FALSE(backend.initialize());
    EXPECT_TRUE(log.contains("error|XtestInputBackend: cannot connect to the X server, error "));
}

} // namespace
} // namespace corvane
