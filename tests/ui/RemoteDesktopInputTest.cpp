#include "NativeKeyCodes.h"
#include "ui/RemoteDesktopWidget.h"

#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

#include <tuple>
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
        frame->yPlane = ByteVector(256);
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
    const auto press = QEvent::MouseButtonPress;
    const auto release = QEvent::MouseButtonRelease;
    const auto move = QEvent::MouseMove;
    m_view.setScaleMode(ScaleMode::Original); // the mapping is that of Fit whatever the mode
    mouse(move, {49.9, 0});
    mouse(move, {350.1, 100});
    mouse(press, kOutside, Qt::LeftButton);
    EXPECT_TRUE(m_sent.empty());

    const struct {
        QEvent::Type action;
        QPointF position;
        Qt::MouseButton button;
        InputEventType type;
        QPointF fraction;
        MouseButton wire = MouseButton::Left;
    } cases[] = {
        {move, {200, 75}, Qt::NoButton, MouseMove, {0.5, 0.25}},
        {move, {50, 0}, Qt::NoButton, MouseMove, {0, 0}},
        {press, {350, 300}, Qt::LeftButton, MouseButtonPress, {1, 1}},
        {release, {110, 150}, Qt::LeftButton, MouseButtonRelease, {0.2, 0.5}},
        {press, {110, 150}, Qt::RightButton, MouseButtonPress, {0.2, 0.5}, MouseButton::Right},
        {press, {110, 150}, Qt::MiddleButton, MouseButtonPress, {0.2, 0.5}, MouseButton::Middle},
        {press, {110, 150}, Qt::ForwardButton, MouseButtonPress, {0.2, 0.5}, MouseButton::Forward},
        {press, {110, 150}, Qt::ExtraButton9, MouseButtonPress, {0.2, 0.5}, MouseButton::Left},
        {QEvent::MouseButtonDblClick, {50, 0}, Qt::LeftButton, MouseButtonPress, {0, 0}},
    };
    for (const auto& c : cases) {
        m_sent.clear();
        mouse(c.action, c.position, c.button);
        ASSERT_EQ(m_sent.size(), 1U) << c.action << c.button;
        EXPECT_EQ(m_sent[0].type, c.type);
        EXPECT_EQ(QPointF(m_sent[0].x, m_sent[0].y), c.fraction);
        EXPECT_EQ(m_sent[0].button, c.wire);
        EXPECT_GT(m_sent[0].timestampMs, 0U);
    }
}

TEST_F(RemoteDesktopInputTest, SendsVerticalWheelOnly) {
    wheel({120, 0});
    wheel({0, 120}, kOutside);
    EXPECT_TRUE(m_sent.empty());
    for (const auto& [angle, sent] : {std::pair{QPoint(0, 120), 120},
                                      {{0, -240}, -240},
                                      {{60, 1}, 1},
                                      {{0, 40000}, 32767},
                                      {{0, -40000}, -32768}}) {
        m_sent.clear();
        wheel(angle);
        ASSERT_EQ(m_sent.size(), 1U);
        EXPECT_EQ(m_sent[0].type, MouseWheel);
        EXPECT_EQ(m_sent[0].wheelDelta, sent);
    }
}

TEST_F(RemoteDesktopInputTest, SendsKeysOnceWhileTheyRepeat) {
    EXPECT_TRUE(key(QEvent::KeyPress, test::kNativeA));
    EXPECT_FALSE(key(QEvent::KeyRelease, test::kNativeA, true));
    EXPECT_FALSE(key(QEvent::KeyPress, test::kNativeA, true));
    EXPECT_TRUE(key(QEvent::KeyRelease, test::kNativeA));
    key(QEvent::KeyPress, test::kNativeRight);
    ASSERT_EQ(m_sent.size(), 3U);
    const auto fieldsOf = [](const InputEvent& event) {
        return std::tuple(event.type, event.keyCode, event.scanCode, event.extended);
    };
    EXPECT_EQ(fieldsOf(m_sent[0]), std::tuple(KeyPress, 0x41U, 0x1eU, false));
    EXPECT_EQ(fieldsOf(m_sent[1]), std::tuple(KeyRelease, 0x41U, 0x1eU, false));
    EXPECT_EQ(fieldsOf(m_sent[2]), std::tuple(KeyPress, 0x27U, 0xe04dU, true));

    m_sent.clear();
    QTest::keyClick(&m_view, Qt::Key_Tab);
    QTest::keyClick(&m_view, Qt::Key_Backtab);
    EXPECT_EQ(takeTypes(), (Types{KeyPress, KeyRelease, KeyPress, KeyRelease}));
    EXPECT_TRUE(m_view.hasFocus());
}

TEST_F(RemoteDesktopInputTest, ReleasesWhatIsHeldAndSendsNothingWhileNotViewing) {
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
        m_view.clearFocus();
        EXPECT_EQ(takeTypes(), (Types{MouseButtonRelease, KeyRelease})) << "once";
        m_view.setFocus();
    }
    for (const auto type : {QEvent::MouseMove, QEvent::MouseButtonPress}) {
        mouse(type, QPointF(200, 150), Qt::LeftButton);
    }
    wheel(QPoint(0, 120));
    key(QEvent::KeyPress, test::kNativeA);
    m_view.clearFocus();
    EXPECT_TRUE(m_sent.empty());
}

} // namespace
} // namespace corvane
