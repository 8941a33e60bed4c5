#pragma once

namespace corvane {

/// Which parts of the program the system is to start by itself.
struct IntegrationChoice {
    bool startAtLogon = false;
    bool runService = false;
};

} // namespace corvane
