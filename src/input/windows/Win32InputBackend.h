#pragma once

#include "input/InputBackend.h"
#include "input/windows/InputFunctions.h"

namespace corvane {

/// Injects input with `SendInput`, one record per event. Positions span the primary monitor. A key
/// that comes with a scan code is identified by that, any other by its virtual key.
class Win32InputBackend : public InputBackend {
public:
    explicit Win32InputBackend(InputFunctions functions = {});
    ~Win32InputBackend() override;
    Win32InputBackend(const Win32InputBackend&) = delete;
    Win32InputBackend& operator=(const Win32InputBackend&) = delete;

    bool initialize() override;
    void shutdown() override;

private:
    bool isInitialized() const override { return m_initialized; }
    bool injectMove(const InputEvent& event) override;
    bool injectButton(const InputEvent& event, bool press) override;
    bool injectWheel(const InputEvent& event) override;
    bool injectKey(const InputEvent& event, bool press) override;

    bool sendMouse(const InputEvent& event, DWORD action, DWORD data, const char* kind);
    bool send(INPUT record, const char* kind);

    const InputFunctions m_functions;
    bool m_initialized = false;
};

} // namespace corvane
