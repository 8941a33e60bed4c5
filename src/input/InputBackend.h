#pragma once

#include "input/IInputBackend.h"

namespace corvane {

/// What the platforms' backends have in common: tells the kinds of events apart and refuses, with a
/// warning, events that arrive before initialisation or are unknown.
class InputBackend : public IInputBackend {
public:
    bool injectEvent(const InputEvent& event) final;

protected:
    /// `name` starts the log lines and must outlive the backend.
    explicit InputBackend(const char* name) : m_name(name) {}

    /// Clamped to 0..1; NaN counts as 0.
    static double clampedFraction(double fraction);

private:
    virtual bool isInitialized() const = 0;

    /// Called only while initialised; the results are those of `injectEvent`.
    virtual bool injectMove(const InputEvent& event) = 0;
    virtual bool injectButton(const InputEvent& event, bool press) = 0; ///< a known button
    virtual bool injectWheel(const InputEvent& event) = 0;
    virtual bool injectKey(const InputEvent& event, bool press) = 0;

    bool injectKnownButton(const InputEvent& event, bool press);

    const char* const m_name;
};

/// The index of a known button in a table that starts with the left one.
constexpr size_t buttonIndex(MouseButton button) {
    return static_cast<size_t>(button) - static_cast<size_t>(MouseButton::Left);
}

inline constexpr size_t kMouseButtons = buttonIndex(MouseButton::Forward) + 1;

} // namespace corvane
