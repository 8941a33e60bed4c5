#pragma once

#include <QMetaType>

#include <cstdint>

namespace corvane {

/// How well a session runs, for the user.
enum class QualityLevel : int32_t { Good = 0, Fair = 1, Poor = 2 };

/// One second of a session, and its totals so far.
struct ConnectionStats {
    double fps = 0;           ///< frames in the last second
    double latencyMs = 0;     ///< the latest round trip measured
    double bandwidthKbps = 0; ///< kilobits in the last second, both directions together
    int64_t bytesSent = 0;
    int64_t bytesReceived = 0;
    int64_t framesDropped = 0;
    uint64_t uptimeSeconds = 0;
};

} // namespace corvane

Q_DECLARE_METATYPE(corvane::QualityLevel)
Q_DECLARE_METATYPE(corvane::ConnectionStats)
