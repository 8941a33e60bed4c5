#include "XtestInputBackend.h"
#include "LogCapture.h"
#include "XInputObserver.h"
#include "XvfbServer.h"

#include <QTest>
#include <gtest/gtest.h>

#include <limits>

namespace corvane {
namespace {

constexpr uint8_t kKeycodeA = 38;
constexpr uint8_t kKeycodeLeftCtrl = 37;
constexpr uint8_t kKeycodeLeftArrow = 113;

InputEvent mouseEvent(InputEventType type, double x, double y, int button = 1, int16_t wheel = 0) {
    InputEvent event;
    event.type = type;
    event.x = x;
    event.y = y;
    event.button = static_cast<MouseButton>(button);
    event.wheelDelta = wheel;
    return event;
}

InputEvent keyEvent(InputEventType type, uint32_t keyCode, uint32_t scanCode) {
    InputEvent event;
    event.type = type;
    event.keyCode = keyCode;
    event.scanCode = scanCode;
    return event;
}

class XtestInputBackendTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(display->isRunning());
        display->use();
        observer = std::make_unique<test::XInputObserver>(display->display());
        ASSERT_TRUE(backend.initialize());
    }

    bool inject(InputEventType type, double x, double y, int button = 1, int16_t wheel = 0) {
        return backend.injectEvent(mouseEvent(type, x, y, button, wheel));
    }

    test::LogCapture log;
    std::unique_ptr<test::XvfbServer> display =
        std::make_unique<test::XvfbServer>(QSize(1001, 501));
    std::unique_ptr<test::XInputObserver> observer;
    XtestInputBackend backend;
};

TEST_F(XtestInputBackendTest, FractionsSpanTheScreenAndStayInsideIt) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const struct {
        double x;
        double y;
        QPoint pixel;
    } cases[] = {
        {0.5, 0.25, {500, 125}},    {1.0, 1.0, {1000, 500}},
        {0.0, 0.0, {0, 0}},         {1.7, -0.2, {1000, 0}},
        {0.5, 0.5, {500, 250}},     {nan, nan, {0, 0}},
        {0.0015, 0.001, {2, 1}},    {infinity, infinity, {1000, 500}},
        {-infinity, 0.5, {0, 250}},
    };
    for (const auto& item : cases) {
        EXPECT_TRUE(inject(InputEventType::MouseMove, item.x, item.y));
        EXPECT_EQ(observer->pointer(), item.pixel) << item.x << ", " << item.y;
    }
}

TEST_F(XtestInputBackendTest, PositionsFollowThePrimaryMonitor) {
    EXPECT_TRUE(inject(InputEventType::MouseMove, 0.5, 0.5));
    EXPECT_EQ(observer->pointer(), QPoint(500, 250));
    observer->setPrimaryMonitor({200, 100, 401, 201});
    EXPECT_TRUE(QTest::qWaitFor([this] {
        inject(InputEventType::MouseMove, 1.0, 0.5);
        return observer->pointer() == QPoint(600, 200);
    }));
}

TEST_F(XtestInputBackendTest, ButtonsGoDownAndUpWhereTheEventSays) {
    const int xButtons[] = {1, 3, 2, 8, 9};
    for (int button = 1; button <= 5; ++button) {
        const double x = 0.1 * button;
        EXPECT_TRUE(inject(InputEventType::MouseButtonPress, x, 0.5, button));
        EXPECT_TRUE(inject(InputEventType::MouseButtonRelease, x, 1.0, button));
        EXPECT_EQ(observer->pointer(), QPoint(100 * button, 500));
        const int xButton = xButtons[button - 1];
        EXPECT_EQ(observer->takeEvents(),
                  (QStringList{QStringLiteral("button %1 down").arg(xButton),
                               QStringLiteral("button %1 up").arg(xButton)}));
    }
}

TEST_F(XtestInputBackendTest, WheelClicksOncePerNotchAndKeepsTheRest) {
    const struct {
        int16_t delta;
        int button;
        int clicks;
    } cases[] = {
        {120, 4, 1}, {-240, 5, 2}, {50, 4, 0}, {50, 4, 0},
        {50, 4, 1},  {-149, 5, 0}, {-1, 5, 1}, {32767, 4, 273},
    };
    for (const auto& item : cases) {
        EXPECT_TRUE(inject(InputEventType::MouseWheel, 0.5, 0.5, 1, item.delta));
        const QStringList events = observer->takeEvents();
        EXPECT_EQ(events.size(), 2 * item.clicks) << item.delta;
        EXPECT_EQ(events.count(QStringLiteral("button %1 down").arg(item.button)), item.clicks);
    }
}

TEST_F(XtestInputBackendTest, KeysArriveUnderTheirKeycode) {
    const struct {
        uint32_t keyCode;
        uint32_t scanCode;
        int keycode;
    } cases[] = {{'A', 0x1E, kKeycodeA}, {0x25, 0x14B, kKeycodeLeftArrow}, {0x13, 0, 127}};
    for (const auto& item : cases) {
        EXPECT_TRUE(
            backend.injectEvent(keyEvent(InputEventType::KeyPress, item.keyCode, item.scanCode)));
        EXPECT_TRUE(observer->isKeyDown(static_cast<uint8_t>(item.keycode)));
        EXPECT_TRUE(
            backend.injectEvent(keyEvent(InputEventType::KeyRelease, item.keyCode, item.scanCode)));
        EXPECT_EQ(observer->takeEvents(),
                  (QStringList{QStringLiteral("key %1 down").arg(item.keycode),
                               QStringLiteral("key %1 up").arg(item.keycode)}));
    }
}

TEST_F(XtestInputBackendTest, UnusableEventsAreNamedAndSendNothing) {
    inject(InputEventType::MouseMove, 0.5, 0.5);
    EXPECT_FALSE(inject(InputEventType::MouseButtonPress, 0.1, 0.1, 7));
    EXPECT_FALSE(inject(InputEventType::MouseButtonRelease, 0.1, 0.1, 0));
    EXPECT_FALSE(inject(InputEventType::None, 0.1, 0.1));
    EXPECT_FALSE(inject(static_cast<InputEventType>(9), 0.1, 0.1));
    EXPECT_FALSE(backend.injectEvent(keyEvent(InputEventType::KeyPress, 0xFE, 0x7F)));
    EXPECT_EQ(observer->pointer(), QPoint(500, 250));
    EXPECT_EQ(observer->takeEvents(), QStringList());
    EXPECT_EQ(log.count("warning|XtestInputBackend: unknown mouse button 7"), 1);
    EXPECT_EQ(log.count("warning|XtestInputBackend: unknown event type 9"), 1);
    EXPECT_EQ(log.count("warning|XtestInputBackend: unknown key, virtual key 0xFE, scan code 0x7F"),
              1);
}

TEST_F(XtestInputBackendTest, ShutdownReleasesWhatIsHeldAndEndsInjection) {
    backend.injectEvent(keyEvent(InputEventType::KeyPress, 0xA2, 0x1D));
    inject(InputEventType::MouseButtonPress, 0.5, 0.5, 1);
    observer->takeEvents();
    backend.shutdown();
    EXPECT_EQ(observer->takeEvents(),
              (QStringList{QStringLiteral("button 1 up"),
                           QStringLiteral("key %1 up").arg(kKeycodeLeftCtrl)}));
    EXPECT_FALSE(inject(InputEventType::MouseMove, 0.5, 0.5));
    EXPECT_EQ(log.count("warning|XtestInputBackend: injectEvent called before initialization"), 1);
    EXPECT_EQ(log.count("info|XtestInputBackend: shut down"), 1);
    EXPECT_TRUE(backend.initialize());
    EXPECT_TRUE(inject(InputEventType::MouseMove, 0.25, 0.0));
    EXPECT_EQ(observer->pointer(), QPoint(250, 0));
}

TEST_F(XtestInputBackendTest, LostDisplayIsAWarning) {
    backend.injectEvent(keyEvent(InputEventType::KeyPress, 0xA2, 0x1D));
    observer.reset();
    display.reset();
    EXPECT_FALSE(inject(InputEventType::MouseMove, 0.5, 0.5));
    EXPECT_TRUE(log.contains("warning|XtestInputBackend: XTEST (mouse move) failed"));
    backend.shutdown();
    EXPECT_FALSE(backend.initialize());
    EXPECT_TRUE(log.contains("error|XtestInputBackend: cannot connect to the X server, error "));
}

} // namespace
} // namespace corvane
