#pragma once

#include "transport/ITransport.h"

#include <memory>

namespace corvane {

/// A transport that connects the two peers directly. Session descriptions and ICE candidates have
/// to be exchanged between them by other means. `connect` starts the offering side and ignores both
/// arguments.
class IPeerTransport : public ITransport {
    Q_OBJECT

public:
    using ITransport::ITransport;

    /// Starts as the answering side.
    virtual void startAsAnswerer() = 0;

    /// The order (sdp, type) is on purpose the reverse of `localDescriptionReady`: it is that of
    /// the signaling message which brings the description.
    virtual void setRemoteDescription(const QString& sdp, const QString& type) = 0;
    virtual void addRemoteCandidate(const QString& candidate, const QString& mid) = 0;

Q_SIGNALS:
    void localDescriptionReady(QString type, QString sdp);
    void localCandidateReady(QString candidate, QString mid);
};

/// A new peer transport, or null if the program was built without one. The build chooses between
/// two implementations of this function.
std::unique_ptr<IPeerTransport> createPeerTransport();

} // namespace corvane
