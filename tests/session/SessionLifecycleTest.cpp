#include "SessionTest.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace corvane::test {
namespace {

const QStringList kViewerPath{QStringLiteral("Initiating"), QStringLiteral("Handshaking"),
                              QStringLiteral("Connecting"), QStringLiteral("Connected")};
const QStringList kTargetPath = kViewerPath.sliced(1);

InputEvent clickAt(double x) {
    InputEvent event;
    event.type = InputEventType::MouseButtonPress;
    event.x = x;
    return event;
}

TEST_F(SessionTest, CarriesPictureAndInput) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    viewer->session->sendInputEvent(clickAt(0.1)); // before there is a session: dropped
    ASSERT_TRUE(connectDevices(*viewer, *target));
    EXPECT_EQ(viewer->states, kViewerPath);
    EXPECT_EQ(target->states, kTargetPath);
    EXPECT_EQ(viewer->session->transportMethod(), QStringLiteral("relay"));
    EXPECT_EQ(viewer->session->peerClientId(), target->id);
    EXPECT_EQ(target->session->peerClientId(), viewer->id);

    ASSERT_TRUE(eventually([&] { return viewer->picture != nullptr; }));
    EXPECT_EQ(viewer->picture->width, 160);
    EXPECT_EQ(viewer->picture->height, 120);

    viewer->session->sendInputEvent(clickAt(0.25));
    target->session->sendInputEvent(clickAt(0.75)); // only the viewer's counts
    ASSERT_TRUE(eventually([&] { return !target->machine->injected.empty(); }));
    EXPECT_EQ(target->machine->injected.size(), 1U);
    EXPECT_EQ(target->machine->injected.front().x, 0.25);
    EXPECT_TRUE(viewer->machine->injected.empty());

    const auto requests = m_server.requests();
    const auto completed = std::find_if(requests.begin(), requests.end(), [](const auto& request) {
        return request.path.endsWith(u"/complete");
    });
    ASSERT_NE(completed, requests.end());
    EXPECT_EQ(completed->body, QByteArrayLiteral(R"({"connection_method":"relay"})"));
}

TEST_F(SessionTest, ThePartnerMayBeQuickerThanTheServersAnswer) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    m_server.misbehaviour().setReply(QStringLiteral("/sessions/create"), {.delayMs = 300});
    EXPECT_TRUE(connectDevices(*viewer, *target));
    EXPECT_EQ(viewer->states, kViewerPath);
}

TEST_F(SessionTest, AStillScreenIsSeen) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    target->machine->framesToShow = 1;
    ASSERT_TRUE(connectDevices(*viewer, *target));
    EXPECT_TRUE(eventually([&] { return viewer->picture != nullptr; }));
}

TEST_F(SessionTest, FollowsResolutionAndMonitor) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    ASSERT_TRUE(connectDevices(*viewer, *target));
    ASSERT_TRUE(eventually([&] { return viewer->picture != nullptr; }));
    target->machine->width = 200;
    EXPECT_TRUE(eventually([&] { return viewer->picture->width == 200; }));
    EXPECT_EQ(m_log.count("info|Frame resolution changed (160x120 -> 200x120), reinitializing "
                          "encoder"),
              1);
    viewer->session->requestMonitorSwitch(2);
    EXPECT_TRUE(eventually([&] { return target->machine->monitor == 2; }));
}

TEST_F(SessionTest, EndsFromEitherSide) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    for (Device* ending : {viewer.get(), target.get()}) {
        ASSERT_TRUE(connectDevices(*viewer, *target));
        ending->session->endSession(QStringLiteral("user_disconnect"));
        EXPECT_TRUE(ending->is(SessionState::Idle));
        EXPECT_EQ(ending->session->role(), SessionRole::None);
        EXPECT_TRUE(eventually(
            [&] { return viewer->is(SessionState::Idle) && target->is(SessionState::Idle); }));
        EXPECT_EQ(viewer->states.last(2), target->states.last(2));
    }
    EXPECT_TRUE(eventually([&] { return closeReasons().size() == 4; }));
    EXPECT_EQ(closeReasons().count(QStringLiteral("user_disconnect")), 2);
    EXPECT_EQ(closeReasons().count(QStringLiteral("remote_transport_closed")), 2);
    EXPECT_EQ(viewer->errors + target->errors, QStringList());
}

TEST_F(SessionTest, EndingNothingDoesNothing) {
    const auto device = createDevice();
    m_log.clear();
    device->session->endSession(QStringLiteral("user_disconnect"));
    EXPECT_TRUE(m_log.lines().empty());
    EXPECT_TRUE(closeReasons().isEmpty());
}

TEST_F(SessionTest, ANewcomerDisplacesAConnectedSession) {
    const auto target = createDevice();
    const auto first = createDevice();
    const auto second = createDevice();
    ASSERT_TRUE(connectDevices(*first, *target));
    ASSERT_TRUE(connectDevices(*second, *target));
    EXPECT_TRUE(eventually([&] { return first->is(SessionState::Idle); }));
    EXPECT_EQ(target->session->peerClientId(), second->id);
    EXPECT_TRUE(eventually([&] { return second->picture != nullptr; }));
    // The answer to the first session's close must not have ended the second.
    EXPECT_TRUE(
        eventually([&] { return m_log.contains("info|Ignoring update of another session"); }));
    EXPECT_TRUE(target->is(SessionState::Connected));
    EXPECT_TRUE(closeReasons().contains(QStringLiteral("new_session_incoming")));
}

TEST_F(SessionTest, ManualAcceptanceWaitsForAKeyThatNeverComes) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    QObject::connect(&target->signaling, &SignalingClient::sessionHandshakeRequest,
                     [&](const QString& session, const QString& master, const QString& purpose) {
                         EXPECT_EQ(purpose, QStringLiteral("remote_desktop"));
                         target->session->acceptSession(session, master, QString());
                     });
    viewer->session->initiateSession(target->id, QStringLiteral("123456"));
    // The viewer has the target's key and meets the relay alone.
    ASSERT_TRUE(eventually([&] { return viewer->is(SessionState::Connected); }));
    EXPECT_TRUE(target->is(SessionState::Handshaking));

    // A session that is being set up is never displaced.
    target->session->acceptSession(QStringLiteral("other"), QStringLiteral("1"), QString());
    EXPECT_EQ(target->errors, QStringList{QStringLiteral("Cannot accept session: not idle")});
    EXPECT_EQ(target->session->peerClientId(), viewer->id);

    target->session->endSession(QStringLiteral("user_disconnect"));
    EXPECT_TRUE(target->is(SessionState::Idle));
}

TEST_F(SessionTest, DestroyingTheManagerEndsTheSession) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    ASSERT_TRUE(connectDevices(*viewer, *target));
    target->session.reset();
    EXPECT_TRUE(eventually([&] { return viewer->is(SessionState::Idle); }));
    EXPECT_TRUE(closeReasons().contains(QStringLiteral("destructor_cleanup")));
}

} // namespace
} // namespace corvane::test
