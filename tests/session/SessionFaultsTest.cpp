#include "SessionTest.h"

namespace corvane::test {
namespace {

TEST_F(SessionTest, ServerRefusalsReachTheUserAndLeaveRoomForTheNext) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    struct Case {
        QString id;
        QString password;
        QString part;
    };
    for (const Case& refused :
         {Case{target->id, QStringLiteral("wrong"), QStringLiteral("password")},
          Case{QStringLiteral("000000000"), QStringLiteral("x"), QStringLiteral("not available")},
          Case{m_server.registerDevice().clientId, QStringLiteral("x"),
               QStringLiteral("offline")}}) {
        viewer->errors.clear();
        viewer->session->initiateSession(refused.id, refused.password);
        ASSERT_TRUE(eventually([&] { return viewer->is(SessionState::Failed); }));
        ASSERT_EQ(viewer->errors.size(), 1);
        EXPECT_TRUE(viewer->errors.first().contains(refused.part))
            << viewer->errors.first().toStdString();
    }
    EXPECT_TRUE(connectDevices(*viewer, *target));
    EXPECT_TRUE(closeReasons().isEmpty());
}

TEST_F(SessionTest, ASecondRequestIsRefusedAndLeavesTheFirstAlone) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    viewer->session->initiateSession(target->id, QStringLiteral("Password1"));
    viewer->session->initiateSession(target->id, QStringLiteral("Password1"));
    EXPECT_EQ(viewer->errors, QStringList{QStringLiteral("Cannot initiate session: not idle")});
    EXPECT_TRUE(eventually([&] { return viewer->is(SessionState::Connected); }));
}

TEST_F(SessionTest, AnswersToAGivenUpRequestDoNotReachTheNextOne) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    m_server.misbehaviour().setReply(
        QStringLiteral("/sessions/create"),
        {.delayMs = 100, .status = 200, .body = R"({"session_id":"abandoned"})"});
    viewer->session->initiateSession(target->id, QStringLiteral("Password1"));
    ASSERT_TRUE(eventually([&] { return !m_server.requests().isEmpty(); }));
    viewer->session->endSession(QStringLiteral("user_disconnect"));
    EXPECT_TRUE(viewer->is(SessionState::Idle));
    EXPECT_TRUE(closeReasons().isEmpty()) << "there was no ID to close";

    m_server.misbehaviour().setReply(QStringLiteral("/sessions/create"), {.delayMs = 300});
    viewer->session->initiateSession(target->id, QStringLiteral("Password1"));
    ASSERT_TRUE(eventually([&] { return viewer->is(SessionState::Connected); }));
    EXPECT_NE(viewer->session->sessionId(), QStringLiteral("abandoned"));
}

TEST_F(SessionTest, UnusableCreationAnswersFail) {
    const auto viewer = createDevice();
    for (const char* body : {"{}", R"({"session_id":7})", R"(["session_id"])", "garbage", ""}) {
        m_server.misbehaviour().setReply(QStringLiteral("/sessions/create"),
                                         {.status = 200, .body = QByteArray(body)});
        viewer->errors.clear();
        viewer->session->initiateSession(QStringLiteral("123456789"), QStringLiteral("x"));
        ASSERT_TRUE(eventually([&] { return viewer->is(SessionState::Failed); })) << body;
        EXPECT_EQ(viewer->errors,
                  QStringList{QStringLiteral("Server returned invalid session data")});
    }
}

TEST_F(SessionTest, UnusableKeysFailOnEitherSide) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    target->session->acceptSession(QStringLiteral("s"), viewer->id, QStringLiteral("bm90IGEga2V5"));
    EXPECT_TRUE(target->is(SessionState::Failed));
    EXPECT_EQ(target->errors.last(), QStringLiteral("ECDH key derivation failed"));

    struct Case {
        const char* key;
        const char* error;
    };
    for (const Case& bad : {Case{R"("")", "Missing target ECDH public key"},
                            Case{"17", "Missing target ECDH public key"},
                            Case{R"("AAAA")", "ECDH key derivation failed"}}) {
        m_server.misbehaviour().setReply(QStringLiteral("/sessions/create"),
                                         {.status = 200, .body = R"({"session_id":"s"})"});
        viewer->session->initiateSession(target->id, QStringLiteral("x"));
        ASSERT_TRUE(eventually([&] { return viewer->is(SessionState::Handshaking); }));
        m_server.pushText(viewer->id,
                          QStringLiteral(R"({"type":"SESSION_HANDSHAKE_ACK","session_id":"s",)"
                                         R"("target_ecdh_public_key":%1})")
                              .arg(QLatin1String(bad.key)));
        ASSERT_TRUE(eventually([&] { return viewer->is(SessionState::Failed); }));
        EXPECT_EQ(viewer->errors.last(), QLatin1String(bad.error));
    }
}

TEST_F(SessionTest, ServerEndsTheSessionByItsReport) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    m_server.misbehaviour().setReply(QStringLiteral("/complete"), {.delayMs = 100});
    struct Case {
        const char* report;
        SessionState state;
    };
    for (const Case& ended :
         {Case{"closed", SessionState::Idle}, Case{"failed", SessionState::Failed}}) {
        m_server.misbehaviour().setStateText(QStringLiteral("complete"),
                                             QLatin1String(ended.report));
        ASSERT_TRUE(connectDevices(*viewer, *target));
        EXPECT_TRUE(eventually([&] {
            return viewer->is(ended.state) && target->is(SessionState::Idle);
        })) << ended.report;
    }
    // Only the target, which saw the transport go, has something to tell the server.
    const QStringList expected(2, QStringLiteral("remote_transport_closed"));
    EXPECT_TRUE(eventually([&] { return closeReasons() == expected; }));
}

TEST_F(SessionTest, AReportAboutAnotherSessionIsIgnored) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    m_server.misbehaviour().setStateText(QStringLiteral("complete"), QStringLiteral("closed"));
    m_server.misbehaviour().setSessionId(QStringLiteral("somebody else's"));
    ASSERT_TRUE(connectDevices(*viewer, *target));
    EXPECT_TRUE(eventually(
        [&] { return m_log.contains("Ignoring update of another session: somebody else's"); }));
    EXPECT_TRUE(viewer->is(SessionState::Connected));
}

TEST_F(SessionTest, ServerMayCallTheSessionConnectedFirst) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    m_server.misbehaviour().setStateText(QStringLiteral("handshake-ack"),
                                         QStringLiteral("connected"));
    target->machine->framesToShow = 1;
    ASSERT_TRUE(connectDevices(*viewer, *target));
    EXPECT_TRUE(eventually([&] { return viewer->picture != nullptr; }));
    EXPECT_EQ(m_log.count("info|Starting streaming (role: Target)"), 1);
}

TEST_F(SessionTest, RelayLossEndsTheSession) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    ASSERT_TRUE(connectDevices(*viewer, *target));
    m_server.relay().dropConnections();
    EXPECT_TRUE(eventually(
        [&] { return viewer->is(SessionState::Idle) && target->is(SessionState::Idle); }));
    EXPECT_TRUE(eventually([&] { return closeReasons().size() == 2; }));
    EXPECT_EQ(closeReasons().count(QStringLiteral("remote_transport_closed")), 2);
    EXPECT_TRUE(connectDevices(*viewer, *target));
}

TEST_F(SessionTest, AnUnreachableRelayFailsTheSession) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    m_server.relay().refuseConnections();
    viewer->session->initiateSession(target->id, QStringLiteral("Password1"));
    EXPECT_TRUE(eventually(
        [&] { return viewer->is(SessionState::Failed) && target->is(SessionState::Failed); }));
    ASSERT_EQ(viewer->errors.size(), 1);
    EXPECT_TRUE(viewer->errors.first().startsWith(
        u"Transport failed: All connection methods failed. Last error: "));
}

TEST_F(SessionTest, WhatTheRelayInventsIsDroppedOrEndsTheSession) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    ASSERT_TRUE(connectDevices(*viewer, *target));
    const QString sessionId = viewer->session->sessionId();
    // A whole frame of 30 bytes that nobody sealed, on either channel; then one too short to be.
    m_server.relay().inject(sessionId, QByteArray("\0\0\0\0\x1e", 5) + QByteArray(30, 'x'));
    m_server.relay().inject(sessionId, QByteArray("\1\0\0\0\x1e", 5) + QByteArray(30, 'x'));
    m_server.relay().inject(sessionId, QByteArray("\0\0\0\0\3abc", 8));
    EXPECT_TRUE(eventually([&] {
        return m_log.count("warning|Failed to decrypt control data (30 bytes)") == 2 &&
               m_log.count("warning|Failed to decrypt video data (30 bytes)") == 1 &&
               m_log.count("warning|Failed to decrypt control data (3 bytes)") == 2;
    }));
    EXPECT_TRUE(viewer->is(SessionState::Connected));
    EXPECT_TRUE(target->is(SessionState::Connected));

    m_server.relay().inject(sessionId, QByteArray("\x07garbage"));
    EXPECT_TRUE(eventually(
        [&] { return viewer->is(SessionState::Failed) && target->is(SessionState::Failed); }));
    EXPECT_TRUE(viewer->errors.last().endsWith(u"Invalid channel type in frame header"));
    EXPECT_TRUE(connectDevices(*viewer, *target));
}

TEST_F(SessionTest, WithoutAScreenTheSessionStillConnects) {
    const auto target = createDevice();
    const auto viewer = createDevice();
    target->machine->canCapture = false;
    ASSERT_TRUE(connectDevices(*viewer, *target));
    EXPECT_EQ(target->errors, QStringList{QStringLiteral("Failed to start screen capture.")});
    EXPECT_EQ(m_log.count("error|Failed to initialize any screen capture backend"), 1);
}

} // namespace
} // namespace corvane::test
