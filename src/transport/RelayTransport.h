#pragma once

#include "common/Backoff.h"
#include "common/ByteVector.h"
#include "transport/ITransport.h"
#include "transport/RelayFrameParser.h"
#include "transport/RelaySendQueue.h"

#include <QAbstractSocket>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>

namespace corvane {

/// Carries the session through a relay node that pairs the two peers by session ID and forwards
/// their frames.
///
/// Set the session ID, `connect`, wait for `connected`, `send`, `disconnect`. A connection that
/// fails or drops is retried automatically, up to three times after each success. Every new
/// connection joins the session again and emits `connected` again.
///
/// One connection carries both channels, so messages queue here, by urgency, and the system gets
/// the next one only when it has nearly nothing left to send: a control message waits for the rest
/// of one frame at most.
class RelayTransport : public ITransport {
    Q_OBJECT

public:
    static constexpr int kMaxReconnectAttempts = 3;
    static constexpr std::chrono::milliseconds kReconnectDelay{1000};
    static constexpr std::chrono::milliseconds kStallTimeout{30'000};

    /// `reconnectDelay`: delay before the first retry; doubled for each further one.
    /// `stallTimeout`: how long `waitUntilQueued` waits while nothing is sent.
    explicit RelayTransport(QObject* parent = nullptr,
                            std::chrono::milliseconds reconnectDelay = kReconnectDelay,
                            std::chrono::milliseconds stallTimeout = kStallTimeout);
    ~RelayTransport() override;

    void setSessionId(const QString& sessionId) { m_sessionId = sessionId; }

    bool connect(const std::string& host, uint16_t port) override;
    void disconnect() override;
    bool isConnected() const override;
    bool send(ChannelType channel, const uint8_t* data, size_t size) override;
    bool sendBulk(const uint8_t* data, size_t size) override;
    qint64 bytesQueued() const override;
    qint64 videoQueued() override;
    bool waitUntilQueued(qint64 atMost) override;

    /// Between this machine and the relay node, as measured by the operating system.
    std::optional<double> roundTripMilliseconds() const override;

private Q_SLOTS:
    void onSocketConnected();
    void onSocketDisconnected();
    void onSocketReadyRead();
    void onSocketError(QAbstractSocket::SocketError error);
    void attemptReconnect();

private:
    bool enqueue(RelaySendQueue::Urgency urgency, ChannelType channel, const uint8_t* data,
                 size_t size);
    void feedSocket();
    qint64 bytesGiven() const;
    void openSocket();
    void sendJoin();
    bool readPiece();
    bool deliverFrames();
    void refuseStream(const QString& reason);
    void clearReceived();
    void scheduleReconnect();

    QTcpSocket m_socket;
    RelaySendQueue m_queue;
    QTimer m_reconnectTimer;
    RelayFrameParser m_parser;
    ByteVector m_piece;  ///< what was read last
    ByteSpan m_unparsed; ///< the part of it that no frame was taken from yet
    QString m_sessionId;
    std::string m_host;
    uint16_t m_port = 0;
    int32_t m_reconnectAttempts = 0;
    bool m_stopped = false;
    Backoff m_reconnectBackoff;
    const std::chrono::milliseconds m_stallTimeout;
    uint64_t m_receiveEpoch = 0; ///< changes whenever bytes received so far lose their meaning
};

} // namespace corvane
