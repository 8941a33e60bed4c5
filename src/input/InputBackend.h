#pragma once

#include "input/IInputBackend.h"

namespace corvane {

/// What the platforms' backends have in common: tells the kinds of events apart and refuses, with a
/// warning, what comes too early or is unknown.
class InputBackend : public IInputBackend {
public:
    bool injectEvent(const InputEvent& event) final;

protected:
    /// `name` begins the log lines and must outlive the backend.
    explicit InputBackend(const char* name) : m_name(name) {}

    /// Between 0 and 1, the edges included; anything but a number counts as 0.
    static double clampedFraction(double fraction);

private:
    virtual bool isInitialized() const = 0;

    /// Called while initialised only; the results are those of `injectEvent`.
    virtual bool injectMove(const InputEvent& event) = 0;
    virtual bool injectButton(const InputEvent& event, bool press) = 0; ///< a known button
    virtual bool injectWheel(const InputEvent& event) = 0;
    virtual bool injectKey(const InputEvent& event, bool press) = 0;

    bool injectKnownButton(const InputEvent& event, bool press);

    const char* const m_name;
};

/// The place of a known button in a table that begins with the left one.
constexpr size_t buttonIndex(MouseButton button) {
    return static_cast<size_t>(button) - static_cast<size_t>(MouseButton::Left);
}

inline constexpr size_t kMouseButtons = buttonIndex(MouseButton::Forward) + 1;

} // namespace corvane
