#pragma once

#include <QProcess>

#include <functional>

namespace corvane::test {

/// A network namespace that programs can be started in one after the other, kept by a process that
/// does nothing else. Attach it to a TestNetwork.
class NetworkPlace {
public:
    NetworkPlace();
    ~NetworkPlace();
    NetworkPlace(const NetworkPlace&) = delete;
    NetworkPlace& operator=(const NetworkPlace&) = delete;

    /// The process that keeps the namespace; 0 when it could not be made.
    qint64 process() const { return m_process.processId(); }

    /// What a child process does before it runs its program in order to run it here. Valid while
    /// this object exists.
    std::function<void()> entrance() const;

    /// Moves the calling thread here, and what it starts from now on.
    void enter() const { entrance()(); }

    /// What left through the place's line so far, headers included.
    qint64 bytesSent() const;

private:
    QProcess m_process;
    int m_namespace = -1; ///< open descriptor of it
};

} // namespace corvane::test
