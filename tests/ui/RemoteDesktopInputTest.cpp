#include "NativeKeyCodes.h"
#include "RemoteDesktopWidget.h"

#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <vector>

namespace corvane {
namespace {

using enum InputEventType;

constexpr QPointF kOutside(20, 150);

/// A view of 400x300 with a square picture at x 50..350.
class RemoteDesktopInputTest : public testing::Test {
protected:
    RemoteDesktopInputTest() {
        QObject::connect(&m_view, &RemoteDesktopWidget::inputEvent,
                         [this](const InputEvent& event) { m_sent.push_back(event); });
        m_view.resize(400, 300);
        m_view.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&m_view));
        m_view.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_view));
        auto frame = std::make_shared<DecodedFrame>();
        frame->width = frame->height = frame->yStride = frame->uvStride = 16;
        frame->yPlane.resize(256);
        frame->uvPlane.resize(128);
        m_view.updateFrame(frame);
        m_view.grabFramebuffer();
        m_view.setFocus();
        m_view.setViewingMode(true);
    }

    void mouse(QEvent::Type type, QPointF position, Qt::MouseButton button = Qt::NoButton) {
        QMouseEvent event(type, position, position, button, button, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_view, &event);
    }

    void wheel(QPoint angleDelta, QPointF position = QPointF(200, 150)) {
        QWheelEvent event(position, position, QPoint(), angleDelta, Qt::NoButton, Qt::NoModifier,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&m_view, &event);
    }

    bool key(QEvent::Type type, test::NativeKeyCode code, bool repeat = false) {
        QKeyEvent event(type, Qt::Key_unknown, Qt::NoModifier, code.scanCode, code.virtualKey, 0,
                        QString(), repeat);
        QCoreApplication::sendEvent(&m_view, &event);
        return event.isAccepted();
    }

    std::vector<InputEventType> takeTypes() {
        std::vector<InputEventType> types;
        for (const InputEvent& event : std::exchange(m_sent, {})) {
            types.push_back(event.type);
        }
        return types;
    }

    using Types = std::vector<InputEventType>;
    RemoteDesktopWidget m_view;
    std::vector<InputEvent> m_sent;
};

TEST_F(RemoteDesktopInputTest, MapsMouseActionsOntoThePicture) {
    struct Case {
        QEvent::Type action;
        QPointF position;
        Qt::MouseButton button;
        InputEventType type; ///< None: nothing is sent
        QPointF fraction = {};
        MouseButton wire = MouseButton::Left;
    };
    const auto press = QEvent::MouseButtonPress;
    const auto release = QEvent::MouseButtonRelease;
    const auto move = QEvent::MouseMove;
    const Case cases[] = {
        {move, {200, 75}, Qt::NoButton, MouseMove, {0.5, 0.25}},
        {move, {50, 0}, Qt::NoButton, MouseMove, {0, 0}},
        {move, {49.9, 0}, Qt::NoButton, None},
        {move, {350.1, 100}, Qt::NoButton, None},
        {press, kOutside, Qt::LeftButton, None},
        {release, kOutside, Qt::LeftButton, None},
        {press, {350, 300}, Qt::LeftButton, MouseButtonPress, {1, 1}},
        {release, {110, 150}, Qt::LeftButton, MouseButtonRelease, {0.2, 0.5}},
        {press, {110, 150}, Qt::RightButton, MouseButtonPress, {0.2, 0.5}, MouseButton::Right},
        {press, {110, 150}, Qt::MiddleButton, MouseButtonPress, {0.2, 0.5}, MouseButton::Middle},
        {press, {110, 150}, Qt::BackButton, MouseButtonPress, {0.2, 0.5}, MouseButton::Back},
        {press, {110, 150}, Qt::ForwardButton, MouseButtonPress, {0.2, 0.5}, MouseButton::Forward},
        {press, {110, 150}, Qt::ExtraButton9, MouseButtonPress, {0.2, 0.5}, MouseButton::Left},
        {QEvent::MouseButtonDblClick, {50, 0}, Qt::LeftButton, MouseButtonPress, {0, 0}},
    };
    m_view.setScaleMode(ScaleMode::Original); // the mapping is that of Fit whatever the mode
    for (const Case& c : cases) {
        m_sent.clear();
        mouse(c.action, c.position, c.button);
        ASSERT_EQ(m_sent.size(), c.type == None ? 0U : 1U) << c.action << c.position.x();
        if (c.type != None) {
            EXPECT_EQ(m_sent[0].type, c.type);
            EXPECT_EQ(QPointF(m_sent[0].x, m_sent[0].y), c.fraction);
            EXPECT_EQ(m_sent[0].button, c.wire);
            EXPECT_GT(m_sent[0].timestampMs, 0U);
        }
    }
}

TEST_F(RemoteDesktopInputTest, SendsVerticalWheelOnly) {
    struct Case {
        QPoint angle;
        int sent; ///< 0: nothing
    };
    for (const Case& c : {Case{{0, 120}, 120},
                          {{0, -240}, -240},
                          {{120, 0}, 0},
                          {{60, 1}, 1},
                          {{0, 40000}, 32767},
                          {{0, -40000}, -32768}}) {
        wheel(c.angle);
        ASSERT_EQ(m_sent.size(), c.sent == 0 ? 0U : 1U) << c.angle.y();
        if (c.sent != 0) {
            EXPECT_EQ(m_sent[0].type, MouseWheel);
            EXPECT_EQ(m_sent[0].wheelDelta, c.sent);
            EXPECT_EQ(QPointF(m_sent[0].x, m_sent[0].y), QPointF(0.5, 0.5));
        }
        m_sent.clear();
    }
    wheel(QPoint(0, 120), kOutside);
    EXPECT_TRUE(m_sent.empty());
}

TEST_F(RemoteDesktopInputTest, SendsKeysOnceWhileTheyRepeat) {
    EXPECT_TRUE(key(QEvent::KeyPress, test::kNativeA));
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(key(QEvent::KeyRelease, test::kNativeA, true));
        EXPECT_FALSE(key(QEvent::KeyPress, test::kNativeA, true));
    }
    EXPECT_TRUE(key(QEvent::KeyRelease, test::kNativeA));
    key(QEvent::KeyPress, test::kNativeRight);
    ASSERT_EQ(m_sent.size(), 3U);
    for (const int i : {0, 1}) {
        const InputEvent& event = m_sent[static_cast<size_t>(i)];
        EXPECT_EQ(event.type, i == 0 ? KeyPress : KeyRelease);
        EXPECT_EQ(event.keyCode, 0x41U);
        EXPECT_EQ(event.scanCode, 0x1eU);
        EXPECT_FALSE(event.extended);
        EXPECT_EQ(event.x + event.y, 0.0);
    }
    EXPECT_EQ(m_sent[2].keyCode, 0x27U);
    EXPECT_EQ(m_sent[2].scanCode, 0xe04dU);
    EXPECT_TRUE(m_sent[2].extended);

    m_sent.clear();
    QTest::keyClick(&m_view, Qt::Key_Tab);
    QTest::keyClick(&m_view, Qt::Key_Backtab);
    EXPECT_EQ(takeTypes(), (Types{KeyPress, KeyRelease, KeyPress, KeyRelease}));
    EXPECT_TRUE(m_view.hasFocus());
}

TEST_F(RemoteDesktopInputTest, ReleasesWhatIsHeld) {
    mouse(QEvent::MouseButtonPress, QPointF(200, 150), Qt::LeftButton);
    mouse(QEvent::MouseMove, QPointF(340, 150), Qt::LeftButton);
    mouse(QEvent::MouseMove, QPointF(390, 150), Qt::LeftButton);
    mouse(QEvent::MouseButtonRelease, QPointF(390, 150), Qt::LeftButton);
    ASSERT_EQ(m_sent.size(), 3U);
    EXPECT_EQ(m_sent[2].type, MouseButtonRelease);
    EXPECT_EQ(m_sent[2].x, m_sent[1].x);

    for (const bool byFocus : {true, false}) {
        key(QEvent::KeyPress, test::kNativeA);
        mouse(QEvent::MouseButtonPress, QPointF(200, 150), Qt::RightButton);
        m_sent.clear();
        if (byFocus) {
            m_view.clearFocus();
        } else {
            m_view.setViewingMode(false);
        }
        EXPECT_EQ(takeTypes(), (Types{MouseButtonRelease, KeyRelease}));
        m_view.clearFocus();
        EXPECT_TRUE(m_sent.empty());
        m_view.setFocus();
    }
}

TEST_F(RemoteDesktopInputTest, SendsNothingWhileNotViewing) {
    m_view.setViewingMode(false);
    for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                            QEvent::MouseButtonDblClick}) {
        mouse(type, QPointF(200, 150), Qt::LeftButton);
    }
    wheel(QPoint(0, 120));
    key(QEvent::KeyPress, test::kNativeA);
    key(QEvent::KeyRelease, test::kNativeA);
    m_view.clearFocus();
    EXPECT_TRUE(m_sent.empty());
}

} // namespace
} // namespace corvane
