#pragma once

#include <QProcess>
#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <vector>

namespace corvane::test {

/// One side of a session, in a process and a network namespace of its own. Ends with this object,
/// or with the test's process.
class PeerProcess {
public:
    PeerProcess();
    ~PeerProcess();

    bool start(const QString& program);
    qint64 id() const { return m_process.processId(); }

    /// Sends an order; NetworkPeer.cpp lists the orders.
    void order(const nlohmann::json& order);

    /// The first event so far that has all fields of `like`; waits for it with the event loop
    /// running. No value when the time is up or the process has ended.
    std::optional<nlohmann::json> await(const nlohmann::json& like, int milliseconds);

    /// The values of one field in all events of one kind.
    std::vector<int> numbers(const std::string& event, const std::string& field) const;

    /// What the peer logged.
    const QByteArray& log() const { return m_log; }

private:
    QProcess m_process;
    std::vector<nlohmann::json> m_events;
    QByteArray m_log;
};

} // namespace corvane::test
