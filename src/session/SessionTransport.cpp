#include "session/SessionTransport.h"

#include "network/server/SignalingClient.h"

#include <spdlog/spdlog.h>

#include <utility>

namespace corvane {

SessionTransport::SessionTransport(SignalingClient* signaling, QString sessionId,
                                   QString peerClientId, PeerTransportFactory peerFactory,
                                   QObject* parent)
    : QObject(parent), m_signaling(signaling), m_sessionId(std::move(sessionId)),
      m_peerId(std::move(peerClientId)), m_manager(nullptr, std::move(peerFactory)) {
    connect(&m_manager, &TransportManager::connectionEstablished, this,
            &SessionTransport::established);
    connect(&m_manager, &TransportManager::connectionFailed, this, &SessionTransport::failed);
    connect(&m_manager, &TransportManager::localDescriptionReady, this,
            &SessionTransport::sendDescription);
    connect(&m_manager, &TransportManager::localCandidateReady, this,
            &SessionTransport::sendCandidate);
    connect(m_signaling, &SignalingClient::iceOffer, this,
            [this](const QString& id, const QString&, const QString& sdp) {
                onRemoteDescription(id, QStringLiteral("offer"), sdp);
            });
    connect(m_signaling, &SignalingClient::iceAnswer, this,
            [this](const QString& id, const QString&, const QString& sdp) {
                onRemoteDescription(id, QStringLiteral("answer"), sdp);
            });
    connect(m_signaling, &SignalingClient::iceCandidate, this,
            [this](const QString& id, const QString&, const QString& candidate,
                   const QString& mid) { onRemoteCandidate(id, candidate, mid); });
}

void SessionTransport::establish(const QString& relayHost, bool offerer) {
    constexpr uint16_t kRelayPort = 9000;
    constexpr int kNoMetric = -1;
    const RelayCandidate relay{QStringLiteral("local-relay"), relayHost, kRelayPort, kNoMetric};
    // The peers do not tell each other their NAT types yet.
    m_manager.establishConnection(m_sessionId, NatType::Unknown, NatType::Unknown, {relay},
                                  offerer);
}

void SessionTransport::close() {
    m_signaling->disconnect(this);
    m_manager.disconnect(this);
    m_manager.cleanup();
}

void SessionTransport::sendDescription(const QString& type, const QString& sdp) {
    const bool offer = type == u"offer";
    m_signaling->sendMessage({{"type", offer ? "ICE_OFFER" : "ICE_ANSWER"},
                              {"session_id", m_sessionId.toStdString()},
                              {"target_client_id", m_peerId.toStdString()},
                              {"sdp", sdp.toStdString()}});
    if (m_signaling->isConnected()) {
        spdlog::info("Sent ICE {} via signaling", offer ? "offer" : "answer");
    }
}

void SessionTransport::sendCandidate(const QString& candidate, const QString& mid) {
    m_signaling->sendMessage({{"type", "ICE_CANDIDATE"},
                              {"session_id", m_sessionId.toStdString()},
                              {"target_client_id", m_peerId.toStdString()},
                              {"candidate", candidate.toStdString()},
                              {"mid", mid.toStdString()}});
}

void SessionTransport::onRemoteDescription(const QString& sessionId, const QString& type,
                                           const QString& sdp) {
    if (sessionId == m_sessionId) {
        spdlog::info("Received ICE {} via signaling", type.toStdString());
        m_manager.setRemoteDescription(sdp, type);
    }
}

void SessionTransport::onRemoteCandidate(const QString& sessionId, const QString& candidate,
                                         const QString& mid) {
    if (sessionId == m_sessionId) {
        m_manager.addRemoteCandidate(candidate, mid);
    }
}

} // namespace corvane
