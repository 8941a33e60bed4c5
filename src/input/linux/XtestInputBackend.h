#pragma once

#include "common/MonitorInfo.h"
#include "input/InputBackend.h"

#include <bitset>
#include <memory>

namespace corvane {

class MonitorWatch;
class X11Connection;

/// Injects input through the XTEST extension of the X display that DISPLAY names.
///
/// Positions span the primary monitor and follow it when it changes. Every injection waits for the
/// server's answer, so its result is the server's. Keys and buttons still down at `shutdown` are
/// released: a session that drops in mid-drag leaves nothing stuck.
class XtestInputBackend : public InputBackend {
public:
    XtestInputBackend();
    ~XtestInputBackend() override;

    bool initialize() override;
    void shutdown() override;

private:
    bool isInitialized() const override { return m_connection != nullptr; }
    bool injectMove(const InputEvent& event) override;
    bool injectButton(const InputEvent& event, bool press) override;
    bool injectWheel(const InputEvent& event) override;
    bool injectKey(const InputEvent& event, bool press) override;

    void movePointer(const InputEvent& event);
    void fakeButton(uint8_t button, bool press);
    void fakeKey(uint8_t keycode, bool press);
    bool settle(const char* kind);

    void updatePrimaryMonitor();
    uint8_t readEvents();

    std::unique_ptr<X11Connection> m_connection;
    std::unique_ptr<MonitorWatch> m_watch;
    MonitorInfo m_monitor;       ///< the one that positions span
    std::bitset<256> m_keysDown; ///< indexed by X keycode
    std::bitset<256> m_buttonsDown;
    int m_wheelRemainder = 0; ///< rotation short of a whole click
};

} // namespace corvane
