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
/// Offering side: call `connect`, send the offer from `localDescriptionReady` to the peer, pass its
/// answer to `setRemoteDescription`, exchange candidates, wait for `connected`. Answering side:
/// call `startAsAnswerer`, pass the offer to `setRemoteDescription`, send the answer back, and so
/// on. An object makes one attempt. `transportError` reports an attempt that could not be started;
/// an attempt that never succeeds reports nothing, so the owner needs a timeout.
///
/// The library's SCTP stack can lose its retransmission timer when a burst of packets is lost. The
/// connection then stays up but carries nothing more in that direction, so a stalled send queue
/// counts as a lost connection.
///
/// Main thread, except for `send` and `isConnected`, which any thread may call.
class P2PTransport : public IPeerTransport {
    Q_OBJECT

public:
    /// A relay's maximum payload, so that a message which fits one transport fits the other, plus
    /// the overhead of sealing (counter and tag).
    static constexpr size_t kMaxMessageSize = kRelayMaxPayload + 8 + 16;

    /// Bytes that may be queued behind the library's own send buffer before a channel refuses more.
    /// Late video is worthless, and that buffer, which holds one message of maximum size, already
    /// adds seconds of delay on a slow link.
    static constexpr size_t kMaxVideoQueued = 1024 * 1024;
    static constexpr size_t kMaxControlQueued = 64 * 1024 * 1024;

    /// Received bytes that may wait for the main thread before back-pressure slows the peer down.
    static constexpr size_t kMaxUndelivered = 4 * kMaxMessageSize;

    static constexpr std::chrono::milliseconds kStallTimeout{30'000};

    /// `stallTimeout`: how long the send queue may stall before the connection is given up.
    explicit P2PTransport(QObject* parent = nullptr,
                          std::chrono::milliseconds stallTimeout = kStallTimeout);
    ~P2PTransport() override;

    /// Enables the TURN server, which is not used without a password. Call before starting.
    void setTurnPassword(std::string password) { m_turnPassword = std::move(password); }

    /// Starts as the offering side. Both arguments are ignored.
    bool connect(const std::string& host, uint16_t port) override;
    void startAsAnswerer() override;
    void disconnect() override;
    bool isConnected() const override;

    void setRemoteDescription(const QString& sdp, const QString& type) override;
    void addRemoteCandidate(const QString& candidate, const QString& mid) override;

    /// Also false if the peer does not accept messages of this size or the channel's queue is full.
    bool send(ChannelType channel, const uint8_t* data, size_t size) override;

    /// Excludes the library's own send buffer, which holds one message of maximum size.
    qint64 bytesQueued() const override;
    bool waitUntilQueued(qint64 atMost) override;
    std::optional<double> roundTripMilliseconds() const override;

private:
    using Channel = std::shared_ptr<rtc::DataChannel>;

    /// Captured by the library's callbacks, which run on its threads and may arrive late.
    struct Listener {
        P2PTransport* transport; ///< used by posted events only, never by callbacks
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
    mutable std::mutex m_mutex; ///< guards the three members above and the flags below
    bool m_connected = false;
    bool m_controlOpen = false;
    bool m_videoOpen = false;
    std::string m_turnPassword;
    std::atomic<qint64> m_accepted = 0; ///< bytes accepted by `send`
    StallDetector m_stall;
    QTimer m_queueWatch;
    std::shared_ptr<PeerEventQueue> m_events; ///< closed when this attempt is over
};

} // namespace corvane
