#pragma once

#include "common/NatType.h"
#include "transport/IPeerTransport.h"
#include "transport/RelayCandidate.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace corvane {

class RelayTransport;

/// Makes a new peer transport, or answers null where there is none.
using PeerTransportFactory = std::function<std::unique_ptr<IPeerTransport>()>;

/// Decides how the two peers of one session reach each other: directly when both NATs allow it and
/// it works in time, else through a relay node.
///
/// Main thread only. Owns the transports; `cleanup` and the destructor may be called from inside a
/// chain that one of their signals started.
class TransportManager : public QObject {
    Q_OBJECT

public:
    static constexpr std::chrono::milliseconds kPeerTimeout{5000};

    TransportManager(QObject* parent, PeerTransportFactory peerFactory,
                     std::chrono::milliseconds peerTimeout = kPeerTimeout);
    ~TransportManager() override;

    /// Gives up whatever was there and starts over. The result arrives as `connectionEstablished`
    /// or `connectionFailed`. `offerer` is true on the side that makes the offer.
    void establishConnection(const QString& sessionId, NatType localNatType, NatType remoteNatType,
                             const std::vector<RelayCandidate>& relayCandidates, bool offerer);

    /// The established transport, or null. Valid until `cleanup`.
    ITransport* activeTransport() const { return m_activeTransport; }

    /// Both go to the peer transport, or nowhere when there is none.
    void setRemoteDescription(const QString& sdp, const QString& type);
    void addRemoteCandidate(const QString& candidate, const QString& mid);

    /// Ends every connection and attempt.
    void cleanup();

Q_SIGNALS:
    void connectionEstablished(QString method); ///< "p2p" or "relay"
    void connectionFailed(QString reason);
    void localDescriptionReady(QString type, QString sdp);
    void localCandidateReady(QString candidate, QString mid);

private Q_SLOTS:
    void onP2PConnected();
    void onP2PError(const QString& error);
    void onP2PTimeout();
    void onRelayConnected();
    void onRelayError(const QString& error);

private:
    /// A transport may be given up inside one of its own signals, so it dies later.
    struct DeferredDelete {
        void operator()(ITransport* transport) const;
    };

    void tryPeer(std::unique_ptr<IPeerTransport> peer, bool offerer);
    void tryRelay();
    void detach(ITransport* transport);

    const PeerTransportFactory m_peerFactory;
    const std::chrono::milliseconds m_peerTimeout;
    std::unique_ptr<IPeerTransport, DeferredDelete> m_peer;
    std::unique_ptr<RelayTransport, DeferredDelete> m_relay;
    ITransport* m_activeTransport = nullptr;
    QTimer m_peerTimer;
    QString m_sessionId;
    std::vector<RelayCandidate> m_relayCandidates;
};

} // namespace corvane
