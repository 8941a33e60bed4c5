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

/// Chooses how the two peers of one session connect: directly if both NATs allow it and it succeeds
/// within the timeout, otherwise through a relay node.
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

    /// Abandons any earlier attempt or connection and starts over. The result arrives as
    /// `connectionEstablished` or `connectionFailed`. `offerer` is true on the offering side.
    void establishConnection(const QString& sessionId, NatType localNatType, NatType remoteNatType,
                             const std::vector<RelayCandidate>& relayCandidates, bool offerer);

    /// The established transport, or null. Valid until `cleanup`.
    ITransport* activeTransport() const { return m_activeTransport; }

    /// Forwarded to the peer transport; ignored if there is none.
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
    /// A transport may be abandoned inside one of its own signals, so it is deleted later.
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
