#pragma once

#include "transport/ITransport.h"

#include <memory>

namespace corvane {

/// A transport that connects the two peers directly and needs session descriptions and candidates
/// carried between them. `connect` starts it as the offering side and ignores both arguments.
class IPeerTransport : public ITransport {
    Q_OBJECT

public:
    using ITransport::ITransport;

    /// Starts as the answering side.
    virtual void startAsAnswerer() = 0;

    virtual void setRemoteDescription(const QString& sdp, const QString& type) = 0;
    virtual void addRemoteCandidate(const QString& candidate, const QString& mid) = 0;

Q_SIGNALS:
    void localDescriptionReady(QString type, QString sdp);
    void localCandidateReady(QString candidate, QString mid);
};

/// A new peer transport, or null where the program was built without one. Two implementations; the
/// build picks one.
std::unique_ptr<IPeerTransport> createPeerTransport();

} // namespace corvane
