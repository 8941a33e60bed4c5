#include "SessionTest.h"

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

TEST_F(SessionPairTest, ASecondRequestIsRefusedAndLeavesTheFirstAlone) {
    m_viewer->session->initiateSession(m_target->id, u"Password1"_s);
    m_viewer->session->initiateSession(m_target->id, u"Password1"_s);
    EXPECT_EQ(m_viewer->errors, QStringList{u"Cannot initiate session: not idle"_s});
    EXPECT_TRUE(eventually([&] { return m_viewer->is(SessionState::Connected); }));
}

TEST_F(SessionPairTest, AnswersToAGivenUpRequestDoNotReachTheNextOne) {
    // The answer that nobody waits for may come before the other one or behind it.
    for (const auto& [abandonedDelayMs, nextDelayMs] : {std::pair{100, 300}, {300, 100}}) {
        const auto requests = m_server.requests().size();
        const auto closed = closeReasons().size();
        m_server.misbehaviour().setReply(
            u"/sessions/create"_s,
            {.delayMs = abandonedDelayMs, .status = 200, .body = R"({"session_id":"abandoned"})"});
        m_viewer->session->initiateSession(m_target->id, u"Password1"_s);
        ASSERT_TRUE(eventually([&] { return m_server.requests().size() > requests; }));
        m_viewer->session->endSession(u"user_disconnect"_s);
        EXPECT_TRUE(m_viewer->is(SessionState::Idle));
        EXPECT_EQ(closeReasons().size(), closed) << "there was no ID to close";

        m_server.misbehaviour().setReply(u"/sessions/create"_s, {.delayMs = nextDelayMs});
        m_viewer->session->initiateSession(m_target->id, u"Password1"_s);
        ASSERT_TRUE(eventually([&] { return m_viewer->is(SessionState::Handshaking); }));
        EXPECT_NE(m_viewer->session->sessionId(), u"abandoned"_s);
        ASSERT_TRUE(eventually([&] { return m_viewer->is(SessionState::Connected); }));
        m_viewer->session->endSession(u"user_disconnect"_s);
        ASSERT_TRUE(eventually([&] { return closeReasons().size() == closed + 2; }));
    }
}

TEST_F(SessionPairTest, ARefusedAcceptanceDoesNotReachTheNextSession) {
    const auto accept = [this](const QString& session, const devserver::Reply& answer) {
        const auto requests = m_server.requests().size();
        m_server.misbehaviour().setReply(u"/handshake-ack"_s, answer);
        m_target->session->acceptSession(session, m_viewer->id, QString());
        return eventually([&] { return m_server.requests().size() > requests; });
    };
    ASSERT_TRUE(accept(u"former"_s, {.delayMs = 50, .status = 403}));
    m_target->session->endSession(u"user_disconnect"_s);
    ASSERT_TRUE(accept(u"next"_s, {.delayMs = 150, .status = 200, .body = R"({"state":"late"})"}));
    ASSERT_TRUE(eventually([&] { return m_log.contains("info|Session updated: state=late"); }));
    EXPECT_TRUE(m_target->is(SessionState::Handshaking));
    EXPECT_EQ(m_target->errors, QStringList());
}

TEST_F(SessionPairTest, UnusableCreationAnswersFail) {
    for (const char* body : {"{}", R"({"session_id":7})", R"(["session_id"])", "garbage", ""}) {
        m_server.misbehaviour().setReply(u"/sessions/create"_s,
                                         {.status = 200, .body = QByteArray(body)});
        m_viewer->errors.clear();
        m_viewer->session->initiateSession(u"123456789"_s, u"x"_s);
        ASSERT_TRUE(eventually([&] { return m_viewer->is(SessionState::Failed); })) << body;
        EXPECT_EQ(m_viewer->errors, QStringList{u"Server returned invalid session data"_s});
    }
}

TEST_F(SessionPairTest, UnusableKeysFailOnEitherSide) {
    m_target->session->acceptSession(u"s"_s, m_viewer->id, u"bm90IGEga2V5"_s);
    EXPECT_TRUE(m_target->is(SessionState::Failed));
    EXPECT_EQ(m_target->errors.last(), u"ECDH key derivation failed"_s);

    const QString answers[][2] = {{uR"("")"_s, u"Missing target ECDH public key"_s},
                                  {u"17"_s, u"Missing target ECDH public key"_s},
                                  {uR"("AAAA")"_s, u"ECDH key derivation failed"_s}};
    for (const auto& [key, error] : answers) {
        m_server.misbehaviour().setReply(u"/sessions/create"_s,
                                         {.status = 200, .body = R"({"session_id":"s"})"});
        m_viewer->session->initiateSession(m_target->id, u"x"_s);
        ASSERT_TRUE(eventually([&] { return m_viewer->is(SessionState::Handshaking); }));
        m_server.pushText(m_viewer->id, uR"({"type":"SESSION_HANDSHAKE_ACK","session_id":"s",)"
                                        R"("target_ecdh_public_key":%1})"_s.arg(key));
        ASSERT_TRUE(eventually([&] { return m_viewer->is(SessionState::Failed); }));
        EXPECT_EQ(m_viewer->errors.last(), error);
    }
}

TEST_F(SessionPairTest, ServerEndsTheSessionByItsReport) {
    m_server.misbehaviour().setReply(u"/complete"_s, {.delayMs = 100});
    for (const auto& [report, state] :
         {std::pair{u"closed"_s, SessionState::Idle}, {u"failed"_s, SessionState::Failed}}) {
        m_server.misbehaviour().setStateText(u"complete"_s, report);
        ASSERT_TRUE(connectDevices());
        EXPECT_TRUE(become(state, SessionState::Idle)) << report.toStdString();
    }
    // Only the target, which saw the transport go, has something to tell the server.
    const QStringList expected(2, u"remote_transport_closed"_s);
    EXPECT_TRUE(eventually([&] { return closeReasons() == expected; }));
}

TEST_F(SessionPairTest, ServerMayCallTheSessionConnectedFirst) {
    m_server.misbehaviour().setStateText(u"handshake-ack"_s, u"connected"_s);
    m_target->machine->framesToShow = 1;
    ASSERT_TRUE(connectDevices());
    EXPECT_TRUE(eventually([&] { return m_viewer->picture != nullptr; }));
    EXPECT_TRUE(m_log.once("info|Starting streaming (role: Target)"));
}

TEST_F(SessionPairTest, RelayLossEndsTheSession) {
    ASSERT_TRUE(connectDevices());
    m_server.relay().dropConnections();
    EXPECT_TRUE(become(SessionState::Idle, SessionState::Idle));
    EXPECT_TRUE(eventually([&] { return closeReasons().size() == 2; }));
    EXPECT_EQ(closeReasons().count(u"remote_transport_closed"_s), 2);
    EXPECT_TRUE(connectDevices());
}

TEST_F(SessionPairTest, AnUnreachableRelayFailsTheSession) {
    m_server.relay().refuseConnections();
    m_viewer->session->initiateSession(m_target->id, u"Password1"_s);
    EXPECT_TRUE(become(SessionState::Failed, SessionState::Failed));
    ASSERT_EQ(m_viewer->errors.size(), 1);
    EXPECT_TRUE(m_viewer->errors.first().startsWith(
        u"Transport failed: All connection methods failed. Last error: "));
}

TEST_F(SessionPairTest, WhatTheRelayInventsIsDroppedOrEndsTheSession) {
    ASSERT_TRUE(connectDevices());
    const QString sessionId = m_viewer->session->sessionId();
    // A whole frame of 30 bytes that nobody sealed, on either channel; then one too short to be.
    m_server.relay().inject(sessionId, QByteArray("\0\0\0\0\x1e", 5) + QByteArray(30, 'x'));
    m_server.relay().inject(sessionId, QByteArray("\1\0\0\0\x1e", 5) + QByteArray(30, 'x'));
    m_server.relay().inject(sessionId, QByteArray("\0\0\0\0\3abc", 8));
    EXPECT_TRUE(eventually([&] {
        return m_log.count("warning|Failed to decrypt control data (30 bytes)") == 2 &&
               m_log.count("warning|Failed to decrypt video data (30 bytes)") == 1 &&
               m_log.count("warning|Failed to decrypt control data (3 bytes)") == 2;
    }));
    EXPECT_TRUE(become(SessionState::Connected, SessionState::Connected));

    m_server.relay().inject(sessionId, "\x07garbage");
    EXPECT_TRUE(become(SessionState::Failed, SessionState::Failed));
    EXPECT_TRUE(m_viewer->errors.last().endsWith(u"Invalid channel type in frame header"));
    EXPECT_TRUE(connectDevices());
}

TEST_F(SessionPairTest, WithoutAScreenTheSessionStillConnects) {
    m_target->machine->canCapture = false;
    ASSERT_TRUE(connectDevices());
    EXPECT_EQ(m_target->errors, QStringList{u"Failed to start screen capture."_s});
    EXPECT_TRUE(m_log.once("error|Failed to initialize any screen capture backend"));
}

} // namespace
} // namespace corvane::test
