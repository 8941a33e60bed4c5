#include "session/SessionDataPlane.h"
#include "RecordingTransport.h"
#include "TestPlatform.h"
#include "common/ByteViews.h"
#include "services/ChatService.h"
#include "services/FileTransferService.h"
#include "support/Bytes.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

#include <algorithm>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

/// One side of a session and the peer that talks to it.
class DataPlaneTest : public ::testing::TestWithParam<SessionRole> {
protected:
    void startAs(SessionRole role, const StreamingSettings& settings = {}) {
        m_plane = std::make_unique<SessionDataPlane>(role, testCipher());
        QObject::connect(m_plane.get(), &SessionDataPlane::disconnectRequested,
                         [this] { ++m_disconnects; });
        QObject::connect(m_plane.get(), &SessionDataPlane::inputEventReceived,
                         [this](const InputEvent&) { ++m_inputEvents; });
        m_plane->setTransport(&m_transport);
        m_plane->startStreaming(settings, createTestPlatform(m_machine));
        m_log.clear();
    }

    void receive(ChannelType channel, const ByteVector& plain) {
        receiveSealed(channel, m_peer->encrypt(plain));
    }

    void receiveSealed(ChannelType channel, const ByteVector& sealed) {
        m_plane->receive(channel, viewOf(sealed).toByteArray());
    }

    void receiveCommand(const QByteArray& command) {
        receive(ChannelType::Control, controlMessage(ControlTag::Command, bytes(command)));
    }

    /// A control message that was sent, opened.
    ByteVector sent(size_t index) const {
        const ByteVector& sealed = m_transport.sent[index];
        return m_peer->decrypt(sealed.data(), sealed.size());
    }

    LogCapture m_log;
    std::shared_ptr<Machine> m_machine = std::make_shared<Machine>();
    RecordingTransport m_transport;
    const std::unique_ptr<AesGcmCipher> m_peer = testCipher();
    std::unique_ptr<SessionDataPlane> m_plane;
    int m_disconnects = 0;
    int m_inputEvents = 0;
};

TEST_F(DataPlaneTest, InputReachesTheTargetOnly) {
    const InputEvent event{.type = InputEventType::KeyPress};
    const ByteVector message = controlMessage(ControlTag::InputEvent, event.serialize());
    startAs(SessionRole::Master);
    receive(ChannelType::Control, message);
    EXPECT_EQ(m_inputEvents, 0);

    startAs(SessionRole::Target);
    receive(ChannelType::Control, message);
    EXPECT_EQ(m_inputEvents, 1);
    EXPECT_EQ(m_machine->injected.size(), 1U);

    receive(ChannelType::Control, bytes("\x01"));
    receive(ChannelType::Control, bytes("\x01\x05"));
    receive(ChannelType::Control, bytes("\x01\x09\0\0\0\0\0\0\0\0"));
    EXPECT_EQ(m_inputEvents, 1);
}

TEST_P(DataPlaneTest, OnlyTheExactCommandDisconnects) {
    startAs(GetParam());
    for (const char* other : {"disconnect\n", "disconnec", "Disconnect", "quit"}) {
        receiveCommand(other);
    }
    EXPECT_EQ(m_disconnects, 0);
    receiveCommand("disconnect");
    EXPECT_EQ(m_disconnects, 1);
    EXPECT_TRUE(m_log.once("info|Session command received: disconnect"));
    EXPECT_TRUE(m_log.once("info|Session command received: disconnect?"));
    receiveCommand(QByteArray(100'000, 'x'));
    EXPECT_LT(m_log.lines().back().size(), 300U);
}

TEST_F(DataPlaneTest, OnlyTheTargetSwitchesMonitors) {
    startAs(SessionRole::Master);
    receiveCommand("switch_monitor:1");
    EXPECT_FALSE(m_log.contains("Switching capture"));

    startAs(SessionRole::Target);
    for (const char* bad : {"switch_monitor:", "switch_monitor:one", "switch_monitor:-1",
                            "switch_monitor:1 ", "switch_monitor:99999999999"}) {
        receiveCommand(bad);
    }
    EXPECT_EQ(m_log.count("warning|Ignoring monitor switch without a valid index"), 5);
    EXPECT_FALSE(m_log.contains("Switching capture"));
    receiveCommand("switch_monitor:3");
    EXPECT_TRUE(m_log.once("info|Switching capture to monitor 3"));
}

TEST_P(DataPlaneTest, UnknownAndForeignMessagesAreDropped) {
    m_machine->canCapture = false; // the capture thread would log as well
    startAs(GetParam());
    m_plane->setClipboardSharing(false);
    m_plane->setState(SessionState::Connected);
    for (const char* message : {"\x07", "\xff rubbish", "\x05", "\x04", "\x03"}) {
        receive(ChannelType::Control, bytes(message));
    }
    EXPECT_TRUE(m_log.lines().empty()) << m_log.lines().front();
    receive(ChannelType::Control, bytes("\x06"));
    EXPECT_TRUE(m_log.once("warning|Chat: service not initialized or message too short"));
}

TEST_P(DataPlaneTest, TheClipboardIsSharedWhileSharingIsOn) {
    startAs(GetParam(), {.clipboardSharing = true});
    constexpr auto kTooSmall =
        "warning|ClipboardSharing: received message too small (1 bytes, minimum 5)";
    for (const bool enabled : {true, false, true}) {
        m_log.clear();
        m_plane->setClipboardSharing(enabled);
        receive(ChannelType::Control, bytes("\x04"));
        EXPECT_EQ(m_log.count(kTooSmall), enabled ? 1 : 0);
    }
    m_plane->stopStreaming();
    m_log.clear();
    receive(ChannelType::Control, bytes("\x04"));
    EXPECT_EQ(m_log.count(kTooSmall), 0);
}

TEST_F(DataPlaneTest, ServicesSendOnceConnected) {
    startAs(SessionRole::Master);
    m_plane->setState(SessionState::Connecting);
    m_plane->chatService()->sendMessage({});
    EXPECT_TRUE(
        m_log.once("warning|Chat send blocked: state=Connecting, cipher=true, transport=true"));
    m_plane->setState(SessionState::Connected);
    m_plane->setTransport(nullptr);
    m_plane->chatService()->sendMessage({});
    EXPECT_TRUE(m_log.once("warning|Chat: no active transport"));
    EXPECT_TRUE(m_transport.sent.empty());
    m_plane->setTransport(&m_transport);
    m_plane->chatService()->sendMessage({});
    EXPECT_EQ(m_transport.sent.size(), 1U);
}

TEST_F(DataPlaneTest, VideoIsForTheViewer) {
    startAs(SessionRole::Target);
    receive(ChannelType::Video, bytes("packet"));
    m_plane->receive(ChannelType::Video, QByteArray(40, 'x'));
    EXPECT_FALSE(m_log.contains("video"));

    startAs(SessionRole::Master);
    QSignalSpy decoded(m_plane.get(), &SessionDataPlane::frameDecoded);
    receive(ChannelType::Video, ByteVector(5000, 0xA5)); // sealed, but no AV1
    EXPECT_TRUE(eventually([this] { return m_log.contains("error|AV1Decoder: "); }));
    EXPECT_EQ(decoded.count(), 0);
}

TEST_F(DataPlaneTest, APacketThatWasGivenUpIsStillDecodedInItsPlaceAndOnce) {
    startAs(SessionRole::Master);
    m_plane->setState(SessionState::Connected);
    const ByteVector late = m_peer->encrypt(ByteVector(5000, 0xA5));
    receiveCommand("overtakes it");
    ASSERT_TRUE(eventually([this] { return !m_transport.sent.empty(); }));
    EXPECT_EQ(sent(0), controlMessage(ControlTag::KeyframeRequest, {}));
    m_log.clear();
    receiveSealed(ChannelType::Video, late);
    receiveSealed(ChannelType::Video, late);
    receive(ChannelType::Video, hexBytes("12 00")); // valid, but no picture
    ASSERT_TRUE(eventually([this] { return m_log.contains("AV1Decoder: decoder needs more"); }));
    EXPECT_EQ(std::ranges::count_if(
                  m_log.lines(),
                  [](const std::string& line) { return line.starts_with("error|AV1Decoder: "); }),
              1);
}

TEST_F(DataPlaneTest, NothingLeavesBeforeOrAfterTheConnection) {
    startAs(SessionRole::Master);
    const InputEvent event{.type = InputEventType::MouseMove};
    m_plane->sendInputEvent(event);
    m_plane->requestMonitorSwitch(1);
    m_plane->setState(SessionState::Connected);
    m_plane->sendInputEvent(event);
    m_plane->requestMonitorSwitch(1);
    m_plane->setState(SessionState::Closing);
    m_plane->sendInputEvent(event);
    EXPECT_EQ(m_transport.sent.size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(EitherRole, DataPlaneTest,
                         ::testing::Values(SessionRole::Master, SessionRole::Target),
                         [](const auto& role) { return std::string(sessionRoleName(role.param)); });

} // namespace
} // namespace corvane::test
