#pragma once

#include <chrono>
#include <cstdint>
#include <optional>

namespace corvane {

/// What the transport says about the line.
struct LinkLoad {
    int64_t videoQueued = 0; ///< bytes accepted and not handed to the network yet
    std::optional<double> roundTripMilliseconds; ///< no value if it cannot be measured
};

/// Decides when the next picture may be made, so that nothing on its way to the viewer grows old,
/// and how much the stream has to give up when the line keeps holding it back. Pictures are skipped
/// before they are encoded: those that follow do not need them.
class LagGuard {
public:
    using Time = std::chrono::steady_clock::time_point;

    /// A packet was handed to the transport.
    void onSent(Time now);

    /// Looks at the line. True when a picture may be made.
    bool update(Time now, const LinkLoad& load);

    /// See `streamLevel`.
    int level() const { return m_level; }

    /// Whether nothing is on its way and nothing given up, so that `update` need not be called
    /// before the next packet.
    bool isIdle(Time now) const;

private:
    bool isBlocked(Time now, const LinkLoad& load);
    void noteRoundTrip(Time now, double milliseconds);
    void judge(Time now);
    void giveUpMore();
    void takeBack();

    static constexpr int kMinCalm = 3;

    using Milliseconds = std::chrono::duration<double, std::milli>;

    Time m_lastSent{};
    Time m_lastUpdate{};
    bool m_blocked = false;
    Milliseconds m_roundTrip{};
    std::optional<Milliseconds> m_shortest; ///< round trip of an empty line
    std::optional<Milliseconds> m_recentShortest;
    Time m_shortestSince{};

    Time m_periodBegin{};
    Milliseconds m_blockedTime{}; ///< in this period
    int m_calmPeriods = 0;        ///< one after another
    int m_calmNeeded = kMinCalm;  ///< of them before something is taken back
    bool m_tookBack = false;      ///< the last step was one upwards
    int m_level = 0;
};

} // namespace corvane
