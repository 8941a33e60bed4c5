#pragma once

#include "netns/DelayLine.h"

#include <QString>

#include <chrono>
#include <optional>

namespace corvane::test {

/// What happens to the packets that two peers send each other. What they exchange with the server
/// is spared, but for the rate.
struct Conditions {
    int udpLossPercent = 0;             ///< at random, each way; 100 blocks the path
    std::chrono::milliseconds delay{0}; ///< each way
    int kilobitsPerSecond = 0;          ///< towards each peer; 0 for no limit
};

/// Network namespaces for a server and two peers: the calling thread moves into a new one, which
/// routes between the peers' and so decides what becomes of their packets. Nothing of it outlives
/// the processes that are in it.
class TestNetwork {
public:
    static constexpr auto kServerAddress = "10.77.0.1";

    explicit TestNetwork(const Conditions& conditions);

    /// Gives the process, which has a namespace to itself, its link into the network. The first two
    /// are the peers.
    void attach(qint64 process);

    /// What this machine lacks for such a network; empty when nothing.
    QString obstacle() const { return m_obstacle; }

    /// Packets that the loss has taken so far.
    int packetsLost();

private:
    void enterNamespace();
    void applyConditions();
    /// Runs a command line; its failure becomes the obstacle. The first obstacle ends everything.
    QString run(const QString& commandLine, const QString& input = {});

    const Conditions m_conditions;
    int m_peers = 0;
    QString m_obstacle;
    std::optional<DelayLine> m_delayLine;
};

} // namespace corvane::test
