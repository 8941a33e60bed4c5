#pragma once

#include <QString>

#include <cstdint>
#include <span>

namespace corvane {

/// A relay node that may carry the session.
struct RelayCandidate {
    QString id; ///< identifies the node in logs and to the server
    QString host;
    uint16_t port = 0;
    int32_t metric = -1; ///< the smallest non-negative value wins; negative = unknown
};

/// The candidate with the smallest metric (the first of several), or the first candidate if none
/// has a metric. Null if there are no candidates; otherwise points into `candidates`.
const RelayCandidate* preferredRelay(std::span<const RelayCandidate> candidates);

} // namespace corvane
