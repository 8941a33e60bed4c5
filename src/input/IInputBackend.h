#pragma once

#include "input/InputEvent.h"

#include <memory>

namespace corvane {

/// Injects events into this machine as input. Main thread only.
class IInputBackend {
public:
    virtual ~IInputBackend() = default;

    virtual bool initialize() = 0;
    virtual void shutdown() = 0;

    /// True when the operating system accepted the event; failures are logged.
    virtual bool injectEvent(const InputEvent& event) = 0;
};

/// The platform's backend, not yet initialised.
std::unique_ptr<IInputBackend> createInputBackend();

} // namespace corvane
