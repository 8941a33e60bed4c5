#pragma once

namespace corvane {

/// What of the program the system shall start by itself.
struct IntegrationChoice {
    bool startAtLogon = false;
    bool runService = false;
};

} // namespace corvane
