#pragma once

namespace corvane {

/// Tells the answer to a creation request apart from those to requests of sessions that were given
/// up before the server answered. Answers come in the order of the requests.
class CreationRequests {
public:
    void sent() { m_pending = true; }

    /// The session that asked, if any still waits, is given up.
    void abandon();

    /// To be called for every answer. True when it belongs to the current session.
    bool takeAnswer();

private:
    bool m_pending = false;
    int m_abandoned = 0; ///< answers still to come that nobody waits for
};

} // namespace corvane
