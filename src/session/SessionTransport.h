#pragma once

#include "transport/TransportManager.h"

#include <QObject>
#include <QString>

namespace corvane {

class SignalingClient;

/// Establishes the transport of one session, exchanging the descriptions and candidates that this
/// takes with the peer through the signaling channel. One per session; main thread.
class SessionTransport : public QObject {
    Q_OBJECT

public:
    /// The client is borrowed and must outlive the object.
    SessionTransport(SignalingClient* signaling, QString sessionId, QString peerClientId,
                     PeerTransportFactory peerFactory, QObject* parent = nullptr);

    /// The result arrives as `established` or `failed`. `offerer` is true on exactly one side.
    void establish(const QString& relayHost, bool offerer);

    /// The established transport, or null. Valid until `close`.
    ITransport* activeTransport() const { return m_manager.activeTransport(); }

    /// Ends every connection and attempt; nothing is emitted afterwards.
    void close();

Q_SIGNALS:
    void established(QString method); ///< "p2p" or "relay"
    void failed(QString reason);

private:
    void sendDescription(const QString& type, const QString& sdp);
    void sendCandidate(const QString& candidate, const QString& mid);
    void onRemoteDescription(const QString& sessionId, const QString& type, const QString& sdp);
    void onRemoteCandidate(const QString& sessionId, const QString& candidate, const QString& mid);

    SignalingClient* const m_signaling;
    const QString m_sessionId;
    const QString m_peerId;
    TransportManager m_manager;
};

} // namespace corvane
