#pragma once

#include "input/IInputBackend.h"

#include <xcb/xcb.h>

#include <bitset>
#include <memory>
#include <optional>

namespace corvane {

/// Injects input through the XTEST extension of the X display that DISPLAY names.
///
/// Positions span the primary monitor and follow it when it changes. Every injection waits for the
/// server's answer, so its result is the server's. Keys and buttons still down at `shutdown` are
/// released: a session that drops in mid-drag leaves nothing stuck.
class XtestInputBackend : public IInputBackend {
public:
    XtestInputBackend();
    ~XtestInputBackend() override;

    bool initialize() override;
    void shutdown() override;
    bool injectEvent(const InputEvent& event) override;

private:
    struct CloseConnection {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    bool injectButton(const InputEvent& event, bool press);
    bool injectWheel(const InputEvent& event);
    bool injectKey(const InputEvent& event, bool press);

    void movePointer(const InputEvent& event);
    void fakeButton(uint8_t button, bool press);
    void fakeKey(uint8_t keycode, bool press);
    bool settle(const char* kind);

    void watchMonitors();
    void updatePrimaryMonitor();
    std::optional<xcb_rectangle_t> findPrimaryMonitor() const;
    bool isRandrEvent(uint8_t type) const;
    uint8_t readEvents();

    std::unique_ptr<xcb_connection_t, CloseConnection> m_connection;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    xcb_rectangle_t m_monitor = {};
    bool m_hasMonitors = false;    ///< the server tells monitors apart
    uint8_t m_firstRandrEvent = 0; ///< 0 = none
    std::bitset<256> m_keysDown;   ///< by X keycode
    std::bitset<256> m_buttonsDown;
    int m_wheelRemainder = 0; ///< rotation not yet worth a click
};

} // namespace corvane
