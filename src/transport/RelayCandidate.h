#pragma once

#include <QString>

#include <cstdint>
#include <span>

namespace corvane {

/// A relay node that may carry the session.
struct RelayCandidate {
    QString id; ///< names the node in logs and towards the server
    QString host;
    uint16_t port = 0;
    int32_t metric = -1; ///< the smallest non-negative value wins; negative = unknown
};

/// The candidate to try: the earliest of those with the smallest metric, or the first one when none
/// has a metric. Null when there are none; otherwise points into `candidates`.
const RelayCandidate* preferredRelay(std::span<const RelayCandidate> candidates);

} // namespace corvane
