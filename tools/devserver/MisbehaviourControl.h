#pragma once

#include "devserver/HttpMessages.h"

#include <optional>

namespace corvane::devserver {

class DevServer;

/// Switches misbehaviours of a running server: `POST /devserver/misbehave` with a JSON object.
/// `help` lists its keys. An unknown key or value is refused with 400, and nothing is applied.
class MisbehaviourControl {
public:
    /// `server` must outlive the control.
    explicit MisbehaviourControl(DevServer& server) : m_server(server) {}

    /// No value when the request is for something else.
    std::optional<Answer> answer(const Request& request);

    /// The keys with their values, one per line, for the command line's help.
    static QString help();

private:
    DevServer& m_server;
};

} // namespace corvane::devserver
