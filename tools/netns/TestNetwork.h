#pragma once

#include "netns/DelayLine.h"

#include <QString>

#include <chrono>
#include <optional>

namespace corvane::test {

/// What happens to the packets that two peers send each other. Packets to and from the server are
/// subject only to the rate limit; those to a server that is attached third are delayed, too.
struct Conditions {
    int udpLossPercent = 0;             ///< at random, each way; 100 blocks the path
    std::chrono::milliseconds delay{0}; ///< each way
    int kilobitsPerSecond = 0;          ///< towards each peer; 0 for no limit
};

/// Network namespaces for a server and two peers: the calling thread moves into a new one, which
/// routes between the peers' and so decides what happens to their packets. Nothing of this outlives
/// the processes in it.
class TestNetwork {
public:
    static constexpr auto kServerAddress = "10.77.0.1";
    static constexpr auto kThirdAddress = "10.77.3.2";

    explicit TestNetwork(const Conditions& conditions);

    /// Connects the process, which has a namespace of its own, to the network, as 10.77.<number>.2.
    /// The first two are the peers; a third can be the server, at `kThirdAddress`.
    void attach(qint64 process);

    /// What this machine lacks to create such a network; empty when nothing.
    QString obstacle() const { return m_obstacle; }

    /// Packets dropped by the configured loss so far.
    int packetsLost();

private:
    void enterNamespace();
    void applyConditions();
    /// Runs a command line; its failure becomes the obstacle. Nothing is run after an obstacle.
    QString run(const QString& commandLine, const QString& input = {});

    const Conditions m_conditions;
    int m_peers = 0;
    QString m_obstacle;
    std::optional<DelayLine> m_delayLine;
};

} // namespace corvane::test
