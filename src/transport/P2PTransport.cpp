#include "transport/P2PTransport.h"

#include "app/settings/DeploymentConstants.h"
#include "transport/PeerEventQueue.h"

#include <rtc/rtc.hpp>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <exception>
#include <variant>

namespace corvane {

namespace {

constexpr uint16_t kTurnPort = 5349;
/// Charged for each queued message besides its bytes, so that empty messages cannot pile up.
constexpr size_t kMessageOverhead = 256;
constexpr auto kTurnUser = "corvane";

const char* labelOf(ChannelType type) {
    return type == ChannelType::Video ? "video" : "control";
}

std::optional<ChannelType> typeOf(const std::string& label) {
    for (const ChannelType type : {ChannelType::Control, ChannelType::Video}) {
        if (label == labelOf(type)) {
            return type;
        }
    }
    return std::nullopt;
}

QByteArray toByteArray(const rtc::binary& bytes) {
    return QByteArray(reinterpret_cast<const char*>(bytes.data()),
                      static_cast<qsizetype>(bytes.size()));
}

/// Makes the library deliver only whole messages. It delivers a message in parts if the message is
/// larger than half of the receive buffer or arrives in more chunks than may be queued. If the rest
/// of an unreliable message is then lost, the library takes the parts for the beginning of the next
/// message, on whichever channel that arrives. Applies to connections created afterwards.
void receiveWholeMessages() {
    constexpr size_t kSmallestChunk = 512;
    rtc::SctpSettings settings;
    settings.recvBufferSize = 2 * P2PTransport::kMaxMessageSize;
    settings.maxChunksOnQueue = *settings.recvBufferSize / kSmallestChunk;
    rtc::SetSctpSettings(settings);
}

} // namespace

P2PTransport::P2PTransport(QObject* parent, std::chrono::milliseconds stallTimeout)
    : IPeerTransport(parent), m_stall(stallTimeout) {
    m_queueWatch.setInterval(stallTimeout / 10);
    m_queueWatch.callOnTimeout(this, &P2PTransport::watchQueue);
}

P2PTransport::~P2PTransport() {
    disconnect();
}

bool P2PTransport::connect(const std::string&, uint16_t) {
    spdlog::info("P2PTransport: starting as offerer");
    return start(true);
}

void P2PTransport::startAsAnswerer() {
    spdlog::info("P2PTransport: starting as answerer");
    start(false);
}

void P2PTransport::disconnect() {
    m_queueWatch.stop();
    if (m_events) {
        m_events->close();
    }
    std::shared_ptr<rtc::PeerConnection> peer;
    Channel control;
    Channel video;
    {
        const std::lock_guard lock(m_mutex);
        m_peer.swap(peer);
        m_control.swap(control);
        m_video.swap(video);
        m_connected = false;
        m_controlOpen = false;
        m_videoOpen = false;
    }
    // Not under the lock: closing waits for running callbacks, which may need it.
    for (const Channel& channel : {control, video}) {
        if (channel) {
            channel->close();
        }
    }
    if (peer) {
        peer->close();
    }
}

bool P2PTransport::isConnected() const {
    const std::lock_guard lock(m_mutex);
    return m_connected;
}

void P2PTransport::setRemoteDescription(const QString& sdp, const QString& type) {
    const auto peer = peerConnection();
    if (!peer) {
        spdlog::warn("P2PTransport: setRemoteDescription called with no PeerConnection");
        return;
    }
    spdlog::info("P2PTransport: setting remote description (type={})", type.toStdString());
    try {
        peer->setRemoteDescription(rtc::Description(sdp.toStdString(), type.toStdString()));
    } catch (const std::exception& error) {
        spdlog::warn("P2PTransport: remote description refused: {}", error.what());
    }
}

void P2PTransport::addRemoteCandidate(const QString& candidate, const QString& mid) {
    const auto peer = peerConnection();
    if (!peer) {
        spdlog::warn("P2PTransport: addRemoteCandidate called with no PeerConnection");
        return;
    }
    spdlog::info("P2PTransport: adding remote ICE candidate");
    try {
        peer->addRemoteCandidate(rtc::Candidate(candidate.toStdString(), mid.toStdString()));
    } catch (const std::exception& error) {
        spdlog::warn("P2PTransport: remote ICE candidate refused: {}", error.what());
    }
}

bool P2PTransport::send(ChannelType type, const uint8_t* data, size_t size) {
    const std::lock_guard lock(m_mutex);
    const Channel& channel = channelFor(type);
    if (!channel || !channel->isOpen()) {
        return false;
    }
    const size_t queued = channel->bufferedAmount();
    if (queued >= (type == ChannelType::Video ? kMaxVideoQueued : kMaxControlQueued)) {
        spdlog::warn("P2PTransport::send: '{}' data channel takes no data, {} bytes unsent",
                     labelOf(type), queued);
        return false;
    }
    try {
        channel->send(reinterpret_cast<const rtc::byte*>(data), size);
        m_accepted += static_cast<qint64>(size);
        return true;
    } catch (const std::exception& error) {
        spdlog::warn("P2PTransport::send failed: {}", error.what());
        return false;
    }
}

qint64 P2PTransport::bytesQueued() const {
    const std::lock_guard lock(m_mutex);
    size_t bytes = 0;
    for (const Channel& channel : {m_control, m_video}) {
        bytes += channel ? channel->bufferedAmount() : 0;
    }
    return static_cast<qint64>(bytes);
}

bool P2PTransport::waitUntilQueued(qint64 atMost) {
    {
        const std::lock_guard lock(m_mutex);
        for (const Channel& channel : {m_control, m_video}) {
            if (channel) {
                channel->setBufferedAmountLowThreshold(
                    static_cast<size_t>(std::max<qint64>(atMost, 0)) / 2);
            }
        }
    }
    const auto events = m_events;
    while (isConnected() && bytesQueued() > atMost && !standsStill()) {
        events->wait(m_stall.deadline());
        events->deliver();
    }
    return isConnected() && bytesQueued() <= atMost;
}

std::optional<double> P2PTransport::roundTripMilliseconds() const {
    const auto peer = peerConnection();
    const auto measured = peer ? peer->rtt() : std::nullopt;
    return measured ? std::optional(static_cast<double>(measured->count())) : std::nullopt;
}

bool P2PTransport::start(bool offerer) {
    try {
        const std::lock_guard lock(m_mutex);
        m_events = std::make_shared<PeerEventQueue>(this, kMaxUndelivered);
        const Listener listener{this, m_events, offerer};
        createPeerConnection(listener);
        if (offerer) {
            createDataChannels(listener);
        } else {
            acceptDataChannels(listener);
        }
        return true;
    } catch (const std::exception& error) {
        spdlog::error("P2PTransport: cannot start: {}", error.what());
        Q_EMIT transportError(QString::fromUtf8(error.what()));
        return false;
    }
}

rtc::Configuration P2PTransport::configuration() const {
    rtc::Configuration configuration;
    for (const char* host : {deployment::kStunServer1, deployment::kStunServer2}) {
        configuration.iceServers.emplace_back(
            fmt::format("stun:{}:{}", host, deployment::kStunPort));
    }
    if (!m_turnPassword.empty()) {
        configuration.iceServers.emplace_back(deployment::kTurnHost, kTurnPort, kTurnUser,
                                              m_turnPassword, rtc::IceServer::RelayType::TurnTls);
    }
    configuration.maxMessageSize = kMaxMessageSize;
    return configuration;
}

void P2PTransport::createPeerConnection(const Listener& listener) {
    using PeerConnection = rtc::PeerConnection;
    receiveWholeMessages();
    m_peer = std::make_shared<PeerConnection>(configuration());
    m_peer->onStateChange([listener](PeerConnection::State state) {
        spdlog::info("P2PTransport: PeerConnection state -> {}", static_cast<int>(state));
        if (state == PeerConnection::State::Failed || state == PeerConnection::State::Closed) {
            listener.events->post([self = listener.transport] { self->onPeerConnectionLost(); });
        }
    });
    m_peer->onGatheringStateChange([](PeerConnection::GatheringState state) {
        spdlog::info("P2PTransport: ICE gathering state -> {}", static_cast<int>(state));
    });
    m_peer->onLocalDescription([listener](const rtc::Description& description) {
        const std::string type = description.typeString();
        spdlog::info("P2PTransport: local description ready (type={})", type);
        listener.events->post([self = listener.transport, type = QString::fromStdString(type),
                               sdp = QString::fromStdString(std::string(description))] {
            Q_EMIT self->localDescriptionReady(type, sdp);
        });
    });
    m_peer->onLocalCandidate([listener](const rtc::Candidate& candidate) {
        const std::string text = candidate.candidate();
        spdlog::info("P2PTransport: local ICE candidate: {}", text);
        listener.events->post([self = listener.transport, text = QString::fromStdString(text),
                               mid = QString::fromStdString(candidate.mid())] {
            Q_EMIT self->localCandidateReady(text, mid);
        });
    });
}

void P2PTransport::createDataChannels(const Listener& listener) {
    rtc::DataChannelInit video;
    video.reliability.unordered = true;
    video.reliability.maxRetransmits = 0;
    m_control = m_peer->createDataChannel(labelOf(ChannelType::Control));
    m_video = m_peer->createDataChannel(labelOf(ChannelType::Video), video);
    listener.watch(ChannelType::Control, *m_control);
    listener.watch(ChannelType::Video, *m_video);
}

void P2PTransport::acceptDataChannels(const Listener& listener) {
    m_peer->onDataChannel([listener](const Channel& channel) {
        const std::string label = channel->label();
        spdlog::info("P2PTransport: incoming data channel: {}", label);
        if (const auto type = typeOf(label)) {
            // At once and on this thread, because the first messages follow immediately.
            listener.watch(*type, *channel);
            listener.events->post(
                [self = listener.transport, type = *type, channel] { self->adopt(type, channel); });
        }
    });
}

void P2PTransport::Listener::watch(ChannelType type, rtc::DataChannel& channel) const {
    channel.onOpen([*this, type] {
        spdlog::info("P2PTransport: '{}' data channel open{}", labelOf(type),
                     offerer ? "" : " (answerer)");
        events->post([self = transport, type] { self->onChannelOpen(type); });
    });
    channel.onClosed(
        [type] { spdlog::info("P2PTransport: '{}' data channel closed", labelOf(type)); });
    channel.onBufferedAmountLow([queue = events] { queue->wake(); });
    channel.onMessage([*this, type](const rtc::message_variant& message) {
        const auto* const binary = std::get_if<rtc::binary>(&message);
        if (binary == nullptr) {
            return;
        }
        if (type == ChannelType::Control) {
            spdlog::info("P2PTransport: control channel received {} bytes ({})", binary->size(),
                         offerer ? "offerer" : "answerer");
        }
        events->post([self = transport, type,
                      bytes = toByteArray(*binary)] { Q_EMIT self->dataReceived(type, bytes); },
                     binary->size() + kMessageOverhead);
    });
}

void P2PTransport::adopt(ChannelType type, const Channel& channel) {
    const std::lock_guard lock(m_mutex);
    channelFor(type) = channel;
}

void P2PTransport::onChannelOpen(ChannelType type) {
    {
        const std::lock_guard lock(m_mutex);
        (type == ChannelType::Video ? m_videoOpen : m_controlOpen) = true;
        if (!m_controlOpen || !m_videoOpen || m_connected) {
            return;
        }
        m_connected = true;
    }
    m_queueWatch.start();
    spdlog::info("P2PTransport: both data channels open — P2P connected!");
    Q_EMIT connected();
}

void P2PTransport::onPeerConnectionLost() {
    {
        const std::lock_guard lock(m_mutex);
        if (!m_connected) {
            return;
        }
        m_connected = false;
    }
    m_queueWatch.stop();
    Q_EMIT disconnected();
}

bool P2PTransport::standsStill() {
    return m_stall.reached(m_accepted, bytesQueued());
}

void P2PTransport::watchQueue() {
    if (standsStill()) {
        spdlog::warn("P2PTransport: nothing was sent for {} ms, giving the connection up",
                     m_stall.limit().count());
        onPeerConnectionLost();
    }
}

std::shared_ptr<rtc::PeerConnection> P2PTransport::peerConnection() const {
    const std::lock_guard lock(m_mutex);
    return m_peer;
}

} // namespace corvane
