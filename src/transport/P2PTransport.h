#pragma once

#include "transport/IPeerTransport.h"
#include "transport/RelayFrame.h"
#include "transport/StallDetector.h"

#include <QTimer>

#include <atomic>
#include <chrono>
#include <memory>
#include <mutex>

namespace rtc {
class DataChannel;
class PeerConnection;
struct Configuration;
} // namespace rtc

namespace corvane {

class PeerEventQueue;

/// Carries the session directly between the two peers, over two WebRTC data channels: "control",
/// reliable and ordered, and "video", unordered and never retransmitted.
///
/// The offering side: `connect`, pass the offer of `localDescriptionReady` on, hand the answer to
/// `setRemoteDescription`, exchange candidates, wait for `connected`. The answering side:
/// `startAsAnswerer`, hand the offer to `setRemoteDescription`, pass the answer on, and so forth.
/// One attempt per object. `transportError` tells of an attempt that could not start; one that does
/// not succeed says nothing and is for the owner to time out.
///
/// The library's SCTP stack can lose its retransmission timer when a burst of packets is lost: the
/// connection then stays up and carries nothing more in that direction. So a queue that moves
/// nothing for some time counts as the loss of the connection.
///
/// Main thread, except for `send` and `isConnected`, which any thread may call.
class P2PTransport : public IPeerTransport {
    Q_OBJECT

public:
    /// A relay's largest frame, so that what fits one transport fits the other, and what sealing
    /// adds to a message (counter and tag).
    static constexpr size_t kMaxMessageSize = kRelayMaxPayload + 8 + 16;

    /// How much may wait behind the library's own send buffer before the video channel refuses
    /// frames and the control channel messages. Video is worthless when it is late; on a slow
    /// link that buffer alone, which is as large as the largest message, holds seconds of it.
    static constexpr size_t kMaxVideoQueued = 1024 * 1024;
    static constexpr size_t kMaxControlQueued = 64 * 1024 * 1024;

    /// How much the peer may send ahead of the main thread before it is slowed down.
    static constexpr size_t kMaxUndelivered = 4 * kMaxMessageSize;

    static constexpr std::chrono::milliseconds kStallTimeout{30'000};

    /// `stallTimeout`: how long a queue may wait with nothing sent before the connection is given
    /// up.
    explicit P2PTransport(QObject* parent = nullptr,
                          std::chrono::milliseconds stallTimeout = kStallTimeout);
    ~P2PTransport() override;

    /// Has a TURN server used as well. Before the start; none without a password.
    void setTurnPassword(std::string password) { m_turnPassword = std::move(password); }

    /// Starts as the offering side. Both arguments are ignored.
    bool connect(const std::string& host, uint16_t port) override;
    void startAsAnswerer() override;
    void disconnect() override;
    bool isConnected() const override;

    void setRemoteDescription(const QString& sdp, const QString& type) override;
    void addRemoteCandidate(const QString& candidate, const QString& mid) override;

    /// False also when the peer takes no message of this size, or when the channel's queue is full.
    bool send(ChannelType channel, const uint8_t* data, size_t size) override;

    /// What waits behind the library's own send buffer, which holds one message of the largest
    /// size.
    qint64 bytesQueued() const override;
    bool waitUntilQueued(qint64 atMost) override;
    std::optional<double> roundTripMilliseconds() const override;

private:
    using Channel = std::shared_ptr<rtc::DataChannel>;

    /// What the library's callbacks hold. They run on its threads and may come late.
    struct Listener {
        P2PTransport* transport; ///< for events to use, never for callbacks
        std::shared_ptr<PeerEventQueue> events;
        bool offerer;

        void watch(ChannelType type, rtc::DataChannel& channel) const;
    };

    bool start(bool offerer);
    rtc::Configuration configuration() const;
    void createPeerConnection(const Listener& listener);
    void createDataChannels(const Listener& listener);
    void acceptDataChannels(const Listener& listener);
    void adopt(ChannelType type, const Channel& channel);
    void onChannelOpen(ChannelType type);
    void onPeerConnectionLost();
    bool standsStill();
    void watchQueue();
    Channel& channelFor(ChannelType type) {
        return type == ChannelType::Video ? m_video : m_control;
    }
    std::shared_ptr<rtc::PeerConnection> peerConnection() const;

    std::shared_ptr<rtc::PeerConnection> m_peer; ///< null until started
    Channel m_control;
    Channel m_video;
    mutable std::mutex m_mutex; ///< guards the three above and the flags
    bool m_connected = false;
    bool m_controlOpen = false;
    bool m_videoOpen = false;
    std::string m_turnPassword;
    std::atomic<qint64> m_accepted = 0; ///< bytes that `send` has taken
    StallDetector m_stall;
    QTimer m_queueWatch;
    std::shared_ptr<PeerEventQueue> m_events; ///< of this attempt; closed when it is over
};

} // namespace corvane
