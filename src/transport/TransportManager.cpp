#include "transport/TransportManager.h"

#include "transport/RelayTransport.h"

#include <QCoreApplication>
#include <spdlog/spdlog.h>

namespace corvane {

namespace {

/// No known type rules a direct connection out; only a number outside the enumeration does.
bool allowsPeerConnection(NatType natType) {
    return natType >= NatType::Unknown && natType <= NatType::Symmetric;
}

} // namespace

TransportManager::TransportManager(QObject* parent, PeerTransportFactory peerFactory,
                                   std::chrono::milliseconds peerTimeout)
    : QObject(parent), m_peerFactory(std::move(peerFactory)), m_peerTimeout(peerTimeout) {
    m_peerTimer.setSingleShot(true);
    m_peerTimer.setTimerType(Qt::PreciseTimer); // so that both peers time out together
    connect(&m_peerTimer, &QTimer::timeout, this, &TransportManager::onP2PTimeout);
}

TransportManager::~TransportManager() {
    cleanup();
}

void TransportManager::establishConnection(const QString& sessionId, NatType localNatType,
                                           NatType remoteNatType,
                                           const std::vector<RelayCandidate>& relayCandidates,
                                           bool offerer) {
    cleanup();
    m_sessionId = sessionId;
    m_relayCandidates = relayCandidates;
    spdlog::info("TransportManager: establishing connection for session {}",
                 sessionId.toStdString());
    spdlog::info("TransportManager: local NAT={}, remote NAT={}, relay candidates={}",
                 static_cast<int32_t>(localNatType), static_cast<int32_t>(remoteNatType),
                 relayCandidates.size());

    if (!allowsPeerConnection(localNatType) || !allowsPeerConnection(remoteNatType)) {
        spdlog::info(
            "TransportManager: NAT type(s) incompatible with P2P, going directly to relay");
        tryRelay();
        return;
    }
    auto peer = m_peerFactory();
    if (!peer) {
        spdlog::info("TransportManager: P2P is not built in, going directly to relay");
        tryRelay();
        return;
    }
    spdlog::info("TransportManager: both NATs are P2P-compatible, trying P2P first");
    tryPeer(std::move(peer), offerer);
}

void TransportManager::setRemoteDescription(const QString& sdp, const QString& type) {
    if (m_peer) {
        m_peer->setRemoteDescription(sdp, type);
    }
}

void TransportManager::addRemoteCandidate(const QString& candidate, const QString& mid) {
    if (m_peer) {
        m_peer->addRemoteCandidate(candidate, mid);
    }
}

void TransportManager::cleanup() {
    m_peerTimer.stop();
    m_activeTransport = nullptr;
    detach(m_peer.get());
    m_peer.reset();
    detach(m_relay.get());
    m_relay.reset();
    m_sessionId.clear();
    m_relayCandidates.clear();
}

void TransportManager::onP2PConnected() {
    spdlog::info("TransportManager: P2P connection established");
    m_peerTimer.stop();
    m_activeTransport = m_peer.get();
    detach(m_relay.get());
    m_relay.reset();
    Q_EMIT connectionEstablished(QStringLiteral("p2p"));
}

void TransportManager::onP2PError(const QString& error) {
    // Keep waiting: the attempt may still succeed, and only the timeout leads to the relay.
    spdlog::warn("TransportManager: P2P error: {}", error.toStdString());
}

void TransportManager::onP2PTimeout() {
    spdlog::warn("TransportManager: P2P connection timed out after {} ms, falling back to relay",
                 m_peerTimeout.count());
    m_peer->disconnect();
    tryRelay();
}

void TransportManager::onRelayConnected() {
    spdlog::info("TransportManager: relay connection established");
    m_peerTimer.stop();
    m_activeTransport = m_relay.get();
    if (m_peer) {
        m_peer->disconnect();
    }
    Q_EMIT connectionEstablished(QStringLiteral("relay"));
}

void TransportManager::onRelayError(const QString& error) {
    spdlog::error("TransportManager: relay connection failed: {}", error.toStdString());
    Q_EMIT connectionFailed(QStringLiteral("All connection methods failed. Last error: ") + error);
}

void TransportManager::tryPeer(std::unique_ptr<IPeerTransport> peer, bool offerer) {
    m_peer.reset(peer.release());
    connect(m_peer.get(), &ITransport::connected, this, &TransportManager::onP2PConnected);
    connect(m_peer.get(), &ITransport::transportError, this, &TransportManager::onP2PError);
    connect(m_peer.get(), &IPeerTransport::localDescriptionReady, this,
            &TransportManager::localDescriptionReady);
    connect(m_peer.get(), &IPeerTransport::localCandidateReady, this,
            &TransportManager::localCandidateReady);
    m_peerTimer.start(m_peerTimeout);
    if (offerer) {
        m_peer->connect({}, 0);
    } else {
        m_peer->startAsAnswerer();
    }
}

void TransportManager::tryRelay() {
    const RelayCandidate* candidate = preferredRelay(m_relayCandidates);
    if (candidate == nullptr) {
        spdlog::error("TransportManager: no relay candidates available");
        Q_EMIT connectionFailed(QStringLiteral("No relay candidates available"));
        return;
    }
    const std::string host = candidate->host.toStdString();
    spdlog::info("TransportManager: connecting to relay node '{}' at {}:{}",
                 candidate->id.toStdString(), host, candidate->port);
    m_relay.reset(new RelayTransport);
    m_relay->setSessionId(m_sessionId);
    connect(m_relay.get(), &ITransport::connected, this, &TransportManager::onRelayConnected);
    connect(m_relay.get(), &ITransport::transportError, this, &TransportManager::onRelayError);
    if (!m_relay->connect(host, candidate->port)) {
        spdlog::error("TransportManager: relay connect() returned false");
        Q_EMIT connectionFailed(QStringLiteral("Failed to initiate relay connection"));
    }
}

/// Disconnects the transport at once, because its object is deleted later.
void TransportManager::detach(ITransport* transport) {
    if (transport == nullptr) {
        return;
    }
    // Nobody needs to hear of this any more.
    QObject::disconnect(transport, nullptr, nullptr, nullptr);
    transport->disconnect();
}

void TransportManager::DeferredDelete::operator()(ITransport* transport) const {
    // Without a running event loop the application object deletes it at the end.
    transport->setParent(QCoreApplication::instance());
    transport->deleteLater();
}

} // namespace corvane
