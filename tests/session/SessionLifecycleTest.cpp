#include "SessionTest.h"

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

const QStringList kViewerPath{u"Initiating"_s, u"Handshaking"_s, u"Connecting"_s, u"Connected"_s};
const QStringList kTargetPath = kViewerPath.sliced(1);

InputEvent clickAt(double x) {
    return {.type = InputEventType::MouseButtonPress, .x = x};
}

TEST_F(SessionPairTest, CarriesPictureAndInput) {
    m_viewer->session->sendInputEvent(clickAt(0.1)); // before there is a session: dropped
    ASSERT_TRUE(connectDevices());
    EXPECT_EQ(m_viewer->states, kViewerPath);
    EXPECT_EQ(m_target->states, kTargetPath);
    EXPECT_EQ(m_viewer->session->transportMethod(), u"relay"_s);
    EXPECT_EQ(m_viewer->session->peerClientId(), m_target->id);
    EXPECT_EQ(m_target->session->peerClientId(), m_viewer->id);

    ASSERT_TRUE(eventually([&] { return m_viewer->picture != nullptr; }));
    EXPECT_EQ(QSize(m_viewer->picture->width, m_viewer->picture->height), QSize(160, 120));

    m_viewer->session->sendInputEvent(clickAt(0.25));
    m_target->session->sendInputEvent(clickAt(0.75)); // only the viewer's counts
    ASSERT_TRUE(eventually([&] { return !m_target->machine->injected.empty(); }));
    EXPECT_EQ(m_target->machine->injected.size(), 1U);
    EXPECT_EQ(m_target->machine->injected.front().x, 0.25);
    EXPECT_TRUE(m_viewer->machine->injected.empty());
}

TEST_F(SessionPairTest, ThePartnerMayBeQuickerThanTheServersAnswer) {
    m_server.misbehaviour().setReply(u"/sessions/create"_s, {.delayMs = 300});
    EXPECT_TRUE(connectDevices());
    EXPECT_EQ(m_viewer->states, kViewerPath);
}

TEST_F(SessionPairTest, FollowsResolutionAndMonitor) {
    ASSERT_TRUE(connectDevices());
    ASSERT_TRUE(eventually([&] { return m_viewer->picture != nullptr; }));
    m_target->machine->width = 200;
    EXPECT_TRUE(eventually([&] { return m_viewer->picture->width == 200; }));
    m_viewer->session->requestMonitorSwitch(2);
    EXPECT_TRUE(eventually([&] { return m_target->machine->monitor == 2; }));
}

TEST_F(SessionPairTest, EndsFromEitherSide) {
    m_viewer->session->endSession(u"too early"_s);
    for (Device* ending : {m_viewer.get(), m_target.get()}) {
        ASSERT_TRUE(connectDevices());
        ending->session->endSession(u"user_disconnect"_s);
        EXPECT_TRUE(ending->is(SessionState::Idle));
        EXPECT_EQ(ending->session->role(), SessionRole::None);
        EXPECT_TRUE(become(SessionState::Idle, SessionState::Idle));
        EXPECT_EQ(m_viewer->states.last(2), m_target->states.last(2));
    }
    EXPECT_TRUE(eventually([&] {
        return closeReasons().count(u"user_disconnect"_s) == 2 &&
               closeReasons().count(u"remote_transport_closed"_s) == 2;
    }));
    EXPECT_EQ(m_viewer->errors + m_target->errors, QStringList());
}

TEST_F(SessionPairTest, ANewcomerDisplacesAConnectedSession) {
    ASSERT_TRUE(connectDevices());
    const auto second = createDevice();
    ASSERT_TRUE(SessionTest::connectDevices(*second, *m_target));
    EXPECT_TRUE(eventually([&] { return m_viewer->is(SessionState::Idle); }));
    EXPECT_EQ(m_target->session->peerClientId(), second->id);
    EXPECT_TRUE(eventually([&] { return second->picture != nullptr; }));
    // The answer to the first session's close must not have ended the second.
    EXPECT_TRUE(
        eventually([&] { return m_log.contains("info|Ignoring update of another session"); }));
    EXPECT_TRUE(m_target->is(SessionState::Connected));
    EXPECT_TRUE(closeReasons().contains(u"new_session_incoming"_s));
}

TEST_F(SessionPairTest, ManualAcceptanceWaitsForAKeyThatNeverComes) {
    QObject::connect(&m_target->signaling, &SignalingClient::sessionHandshakeRequest,
                     [&](const QString& session, const QString& master, const QString& purpose) {
                         EXPECT_EQ(purpose, u"remote_desktop"_s);
                         m_target->session->acceptSession(session, master, QString());
                     });
    m_viewer->session->initiateSession(m_target->id, u"123456"_s);
    // The viewer has the target's key and goes to the relay by itself.
    ASSERT_TRUE(eventually([&] { return m_viewer->is(SessionState::Connected); }));
    EXPECT_TRUE(m_target->is(SessionState::Handshaking));

    // A session that is being set up is never displaced.
    m_target->session->acceptSession(u"other"_s, u"1"_s, QString());
    EXPECT_EQ(m_target->errors, QStringList{u"Cannot accept session: not idle"_s});
    EXPECT_EQ(m_target->session->peerClientId(), m_viewer->id);

    m_target->session->endSession(u"user_disconnect"_s);
    EXPECT_TRUE(m_target->is(SessionState::Idle));
}

} // namespace
} // namespace corvane::test
