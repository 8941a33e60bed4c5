#pragma once

#include <QHash>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QString>

class QTcpServer;

namespace corvane::devserver {

class RelayPeer;

/// The relay node: pairs the two connections that join the same session and forwards their frames
/// unchanged. A third one is refused while both live; when one leaves, the other is closed. A frame
/// with an unknown channel or a payload above the limit ends the connection it came from.
class RelayNode : public QObject {
    Q_OBJECT

public:
    explicit RelayNode(QObject* parent);
    ~RelayNode() override;

    /// False when the port is not available; the reason goes to `error`.
    bool start(const QHostAddress& address, quint16 port, QString& error);

    /// Stays the same while connections are refused.
    quint16 port() const { return m_port; }

    /// Open connections, joined or not.
    int connections() const { return static_cast<int>(m_peers.size()); }

    /// Connections accepted so far, including those closed since.
    int acceptedConnections() const { return m_accepted; }

    /// 0, 1 or 2.
    int joinedPeers(const QString& sessionId) const;

    struct ChannelTotals {
        qint64 frames = 0;
        qint64 bytes = 0; ///< payload
    };

    /// Frames of the video channel forwarded so far, over all sessions.
    ChannelTotals videoTotals() const { return m_videoTotals; }

    /// Bytes forwarded so far, including frame headers but not join frames.
    qint64 bytesForwarded() const { return m_bytesForwarded; }

    /// Stops reading and forwarding; new connections are accepted but not read.
    void stall();
    void resume();

    /// Aborts every connection.
    void dropConnections();

    /// Closes the listener; existing connections stay open. `acceptConnections` reopens it on the
    /// same port, and returns false when that has been taken meanwhile.
    void refuseConnections();
    bool acceptConnections();

    /// Sends raw bytes to both peers of a session, as if they had been forwarded.
    void inject(const QString& sessionId, const QByteArray& bytes);

private:
    void onNewConnection();
    void onJoined(RelayPeer* peer);
    void onFrameStarted(int channel, qint64 payloadBytes);
    void onGone(RelayPeer* peer);
    void setStalled(bool stalled);

    QTcpServer* m_listener;
    QHostAddress m_address;
    quint16 m_port = 0;
    QList<RelayPeer*> m_peers;
    QHash<QString, QList<RelayPeer*>> m_sessions;
    int m_accepted = 0;
    qint64 m_bytesForwarded = 0;
    ChannelTotals m_videoTotals;
    bool m_stalled = false;
};

} // namespace corvane::devserver
