#include "session/SessionDataPlane.h"
#include "TestPlatform.h"
#include "common/ByteViews.h"
#include "crypto/AesGcmCipher.h"
#include "services/ChatService.h"
#include "services/FileTransferService.h"
#include "support/Bytes.h"
#include "support/Eventually.h"
#include "support/LogCapture.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

namespace corvane::test {
namespace {

using namespace Qt::StringLiterals;

const ByteVector kKey(32, 0x11);
const ByteVector kIv(12, 0x22);

/// Keeps what it is given to send.
class RecordingTransport : public ITransport {
public:
    bool connect(const std::string&, uint16_t) override { return true; }
    void disconnect() override {}
    bool isConnected() const override { return true; }
    bool send(ChannelType channel, const uint8_t* data, size_t size) override {
        sent.emplace_back(channel, ByteVector(data, data + size));
        return true;
    }
    qint64 bytesQueued() const override { return 0; }
    bool waitUntilQueued(qint64) override { return true; }
    std::optional<double> roundTripMilliseconds() const override { return 12.5; }

    std::vector<std::pair<ChannelType, ByteVector>> sent;
};

/// One side of a session and the peer that talks to it.
class DataPlaneTest : public ::testing::TestWithParam<SessionRole> {
protected:
    void startAs(SessionRole role, const StreamingSettings& settings = {}) {
        m_plane =
            std::make_unique<SessionDataPlane>(role, std::make_unique<AesGcmCipher>(kKey, kIv));
        QObject::connect(m_plane.get(), &SessionDataPlane::disconnectRequested,
                         [this] { ++m_disconnects; });
        QObject::connect(m_plane.get(), &SessionDataPlane::inputEventReceived,
                         [this](const InputEvent&) { ++m_inputEvents; });
        m_plane->setTransport(&m_transport);
        m_log.clear();
        m_plane->startStreaming(settings, createTestPlatform(m_machine));
        m_started = m_log.lines();
        m_log.clear();
    }

    void receive(ChannelType channel, const ByteVector& plain) {
        receiveSealed(channel, m_peer.encrypt(plain));
    }

    void receiveSealed(ChannelType channel, const ByteVector& sealed) {
        m_plane->receive(channel, viewOf(sealed).toByteArray());
    }

    void receiveCommand(const QByteArray& command) {
        receive(ChannelType::Control, controlMessage(ControlTag::Command, bytes(command)));
    }

    /// A control message that was sent, opened.
    ByteVector sent(size_t index) const {
        const auto& [channel, sealed] = m_transport.sent[index];
        EXPECT_EQ(channel, ChannelType::Control);
        return m_peer.decrypt(sealed.data(), sealed.size());
    }

    LogCapture m_log;
    std::shared_ptr<Machine> m_machine = std::make_shared<Machine>();
    RecordingTransport m_transport;
    AesGcmCipher m_peer{kKey, kIv};
    std::unique_ptr<SessionDataPlane> m_plane;
    std::vector<std::string> m_started; ///< logged at the start of streaming
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
    EXPECT_EQ(m_log.count("warning|Failed to deserialize input event: InputEvent::deserialize: "
                          "buffer too small for header"),
              2);
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

TEST_P(DataPlaneTest, ServicesStartInOrderAndAnswerOnTheirTag) {
    startAs(GetParam(), {.clipboardSharing = true});
    std::vector<std::string> started = m_started;
    std::erase_if(started, [](const auto& line) { return line.starts_with("debug|"); });
    started.resize(4);
    EXPECT_EQ(
        started,
        (std::vector<std::string>{
            "info|Starting streaming (role: " + std::string(sessionRoleName(GetParam())) + ")",
            "info|File transfer service initialized", "info|Chat service initialized",
            // There is no clipboard without windows.
            "error|ClipboardSharing: QApplication::clipboard() returned null"}));
    receive(ChannelType::Control, bytes("\x05\x09"));
    EXPECT_TRUE(m_log.once("warning|FileTransfer: unknown sub-type 0x09"));
    receive(ChannelType::Control, bytes("\x06short"));
    EXPECT_TRUE(m_log.once("warning|ChatService: message too short (5 bytes)"));
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

TEST_F(DataPlaneTest, ServicesSendOnTheirTagOnceConnected) {
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
    m_plane->fileTransferService()->requestListing(u"/"_s);
    ASSERT_EQ(m_transport.sent.size(), 2U);
    EXPECT_EQ(sent(0).front(), 0x06);
    EXPECT_EQ(sent(0).size(), 11U);
    EXPECT_EQ(sent(1), bytes(QByteArray("\x05\x01\x01\0\0\0/", 7)));
}

TEST_F(DataPlaneTest, VideoIsForTheViewer) {
    startAs(SessionRole::Target);
    receive(ChannelType::Video, bytes("packet"));
    m_plane->receive(ChannelType::Video, QByteArray(40, 'x'));
    EXPECT_FALSE(m_log.contains("video"));

    startAs(SessionRole::Master);
    QSignalSpy decoded(m_plane.get(), &SessionDataPlane::frameDecoded);
    receive(ChannelType::Video, ByteVector(5000, 0xA5)); // sealed, but no AV1
    EXPECT_EQ(decoded.count(), 0);
    EXPECT_TRUE(m_log.contains("error|AV1Decoder: "));
}

TEST_F(DataPlaneTest, APacketThatWasGivenUpIsStillDecodedInItsPlaceAndOnce) {
    startAs(SessionRole::Master);
    m_plane->setState(SessionState::Connected);
    const ByteVector late = m_peer.encrypt(ByteVector(5000, 0xA5));
    receiveCommand("overtakes it");
    ASSERT_TRUE(eventually([this] { return !m_transport.sent.empty(); }));
    EXPECT_EQ(sent(0), controlMessage(ControlTag::KeyframeRequest, {}));
    m_log.clear();
    receiveSealed(ChannelType::Video, late);
    EXPECT_TRUE(m_log.contains("error|AV1Decoder: "));
    m_log.clear();
    receiveSealed(ChannelType::Video, late);
    EXPECT_FALSE(m_log.contains("error|AV1Decoder: "));
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
    ASSERT_EQ(m_transport.sent.size(), 2U);
    EXPECT_EQ(sent(0), controlMessage(ControlTag::InputEvent, event.serialize()));
    EXPECT_EQ(sent(1), bytes("\x03switch_monitor:1"));
}

INSTANTIATE_TEST_SUITE_P(EitherRole, DataPlaneTest,
                         ::testing::Values(SessionRole::Master, SessionRole::Target),
                         [](const auto& role) { return std::string(sessionRoleName(role.param)); });

} // namespace
} // namespace corvane::test
