#include "session/SessionDataPlane.h"

#include "common/ByteViews.h"
#include "common/LoggableText.h"
#include "crypto/AesGcmCipher.h"
#include "session/SessionCommand.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace corvane {

namespace {

constexpr size_t kLoggedCommandSize = 200;

} // namespace

/// The roles that accept a tag, its shortest message (tag byte included) and its handler.
struct SessionDataPlane::ControlRoute {
    ControlTag tag;
    bool master;
    bool target;
    size_t minimumSize;
    void (SessionDataPlane::*handler)(ByteSpan message);
};

const SessionDataPlane::ControlRoute* SessionDataPlane::findRoute(uint8_t tag) {
    using enum ControlTag;
    static constexpr std::array<ControlRoute, 6> kRoutes{{
        {InputEvent, false, true, 2, &SessionDataPlane::onInputEvent},
        {KeyframeRequest, false, true, 1, &SessionDataPlane::onKeyframeRequest},
        {Command, true, true, 2, &SessionDataPlane::onCommand},
        {Clipboard, true, true, 1, &SessionDataPlane::onClipboard},
        {FileTransfer, true, true, 2, &SessionDataPlane::onFileTransfer},
        {Chat, true, true, 1, &SessionDataPlane::onChat},
    }};
    const auto route = std::find_if(kRoutes.begin(), kRoutes.end(), [tag](const auto& candidate) {
        return static_cast<uint8_t>(candidate.tag) == tag;
    });
    return route != kRoutes.end() ? route : nullptr;
}

SessionDataPlane::SessionDataPlane(SessionRole role, std::unique_ptr<AesGcmCipher> cipher,
                                   QObject* parent)
    : QObject(parent), m_role(role), m_link(std::move(cipher)), m_services(m_link) {}

SessionDataPlane::~SessionDataPlane() = default;

void SessionDataPlane::setTransport(ITransport* transport) {
    m_link.setTransport(transport);
    updateFlow();
}

void SessionDataPlane::startStreaming(const StreamingSettings& settings,
                                      const SessionPlatform& platform) {
    if (m_streaming) {
        return;
    }
    m_streaming = true;
    spdlog::info("Starting streaming (role: {})", sessionRoleName(m_role));
    m_services.start(settings.clipboardSharing);
    if (m_role == SessionRole::Target) {
        m_target = std::make_unique<TargetStream>(settings, m_link.cipher());
        connect(m_target.get(), &TargetStream::packetReady, this, &SessionDataPlane::sendVideo);
        if (!m_target->start(platform)) {
            m_target.reset();
            Q_EMIT failed(tr("Failed to start screen capture."));
        }
    } else {
        createViewer();
        spdlog::info("Master streaming started (decoder ready)");
    }
}

void SessionDataPlane::stopStreaming() {
    if (!m_streaming) {
        return;
    }
    m_streaming = false;
    m_services.stop();
    if (m_target) {
        m_target->stop();
    }
    if (m_viewer) {
        m_viewer->stop();
    }
}

void SessionDataPlane::setState(SessionState state) {
    m_link.setState(state);
    updateFlow();
}

void SessionDataPlane::receive(ChannelType channel, const QByteArray& sealed) {
    switch (channel) {
    case ChannelType::Control:
        receiveControl(sealed);
        break;
    case ChannelType::Video:
        receiveVideo(sealed);
        break;
    }
}

void SessionDataPlane::sendInputEvent(const InputEvent& event) {
    if (m_role != SessionRole::Master || !m_link.isOpen()) {
        return;
    }
    ByteVector record;
    try {
        record = event.serialize();
    } catch (const std::runtime_error& error) {
        spdlog::warn("Failed to serialize input event: {}", error.what());
        return;
    }
    if (sendControl(ControlTag::InputEvent, record) == SendResult::SealingFailed) {
        spdlog::error("Failed to encrypt input event");
    }
}

void SessionDataPlane::requestMonitorSwitch(int monitorIndex) {
    if (!m_link.isOpen()) {
        return;
    }
    sendControl(ControlTag::Command, bytesOf(switchMonitorCommand(monitorIndex)));
    spdlog::info("Requested monitor switch to {}", monitorIndex);
}

void SessionDataPlane::receiveControl(const QByteArray& sealed) {
    const ByteVector message = m_link.open(sealed);
    if (message.empty()) {
        spdlog::warn("Failed to decrypt control data ({} bytes)", sealed.size());
        return;
    }
    if (m_viewer) {
        m_viewer->onMessage(SessionLink::counterOf(sealed));
    }
    const ControlRoute* route = findRoute(message.front());
    if (route == nullptr || message.size() < route->minimumSize) {
        return;
    }
    if (m_role == SessionRole::Target ? route->target : route->master) {
        (this->*route->handler)(message);
    }
}

void SessionDataPlane::receiveVideo(const QByteArray& sealed) {
    if (m_role != SessionRole::Master) {
        return;
    }
    ByteVector packet = m_link.open(sealed);
    if (packet.empty()) {
        spdlog::warn("Failed to decrypt video data ({} bytes)", sealed.size());
        m_link.countDroppedFrame();
        return;
    }
    if (!m_viewer) {
        createViewer();
    }
    const uint64_t counter = SessionLink::counterOf(sealed);
    if (!m_viewer->onMessage(counter)) {
        return;
    }
    m_viewer->receive(counter, std::move(packet));
}

void SessionDataPlane::onInputEvent(ByteSpan message) {
    InputEvent event;
    try {
        const ByteSpan record = message.subspan(1);
        event = InputEvent::deserialize(record.data(), record.size());
    } catch (const std::runtime_error& error) {
        spdlog::warn("Failed to deserialize input event: {}", error.what());
        return;
    }
    Q_EMIT inputEventReceived(event);
    if (m_target) {
        m_target->applyInput(event);
    }
}

void SessionDataPlane::onKeyframeRequest(ByteSpan) {
    spdlog::debug("Key frame requested by Master");
    if (m_target) {
        m_target->repairPicture();
    }
}

void SessionDataPlane::onCommand(ByteSpan message) {
    const std::string_view command(reinterpret_cast<const char*>(message.data()) + 1,
                                   message.size() - 1);
    spdlog::info("Session command received: {}", loggableText(command, kLoggedCommandSize));
    if (command == kDisconnectCommand) {
        Q_EMIT disconnectRequested();
        return;
    }
    if (m_role != SessionRole::Target || !command.starts_with(kSwitchMonitorCommand)) {
        return;
    }
    const auto monitorIndex = parseSwitchMonitorCommand(command);
    if (!monitorIndex) {
        spdlog::warn("Ignoring monitor switch without a valid index");
        return;
    }
    spdlog::info("Switching capture to monitor {}", *monitorIndex);
    if (m_target) {
        m_target->switchMonitor(*monitorIndex);
    }
}

void SessionDataPlane::createViewer() {
    m_viewer = std::make_unique<ViewerStream>();
    connect(m_viewer.get(), &ViewerStream::keyframeNeeded, this,
            [this] { sendControl(ControlTag::KeyframeRequest, {}); });
    connect(m_viewer.get(), &ViewerStream::pictureDecoded, this, &SessionDataPlane::frameDecoded);
    // Whoever takes the pictures counts them; the overtaken ones were received as well.
    connect(m_viewer.get(), &ViewerStream::pictureOvertaken, &m_link, &SessionLink::countFrame);
    connect(m_viewer.get(), &ViewerStream::packetDropped, &m_link, &SessionLink::countDroppedFrame);
}

void SessionDataPlane::updateFlow() {
    if (m_target) {
        m_target->setFlowing(m_link.isOpen());
    }
}

SendResult SessionDataPlane::sendControl(ControlTag tag, ByteSpan payload) {
    return m_link.send(ChannelType::Control, controlMessage(tag, payload));
}

void SessionDataPlane::sendVideo(const ByteVector& sealed) {
    switch (m_link.sendSealed(ChannelType::Video, sealed)) {
    case SendResult::Sent:
        m_link.countFrame();
        break;
    case SendResult::Refused:
        m_link.countDroppedFrame();
        // The viewer will lack this frame and cannot use what builds on it.
        m_target->requestKeyframe();
        break;
    case SendResult::NotConnected:
    case SendResult::NoTransport:
    case SendResult::SealingFailed:
        break;
    }
}

} // namespace corvane
