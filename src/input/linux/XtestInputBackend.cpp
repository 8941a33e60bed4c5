#include "input/linux/XtestInputBackend.h"

#include "input/linux/KeyTranslation.h"
#include "x11/MonitorWatch.h"
#include "x11/X11Connection.h"
#include "x11/X11Monitors.h"
#include "x11/XcbEvent.h"

#include <spdlog/spdlog.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace corvane {

namespace {

constexpr int kWheelNotch = 120;
constexpr uint8_t kWheelUpButton = 4;
constexpr uint8_t kWheelDownButton = 5;

/// Indexed by `buttonIndex`; numbers 4 to 7 belong to the wheel.
constexpr std::array<uint8_t, kMouseButtons> kXButtons{1, 3, 2, 8, 9};

/// The pixel at a fraction, from 0 to 1, of an edge.
int16_t pixelAt(double fraction, int32_t origin, int32_t length) {
    return static_cast<int16_t>(origin + std::lround(fraction * (std::max(length, 1) - 1)));
}

} // namespace

XtestInputBackend::XtestInputBackend() : InputBackend("XtestInputBackend") {}

XtestInputBackend::~XtestInputBackend() {
    shutdown();
}

bool XtestInputBackend::initialize() {
    if (m_connection) {
        return true;
    }
    int error = 0;
    auto connection = X11Connection::open(nullptr, &error);
    if (!connection) {
        spdlog::error("XtestInputBackend: cannot connect to the X server, error {}", error);
        return false;
    }
    if (!connection->hasExtension(xcb_test_id)) {
        spdlog::error("XtestInputBackend: the X server has no XTEST extension");
        return false;
    }
    m_connection = std::move(connection);
    m_watch = std::make_unique<MonitorWatch>(*m_connection);
    updatePrimaryMonitor();
    spdlog::info("XtestInputBackend: initialized");
    return true;
}

void XtestInputBackend::shutdown() {
    if (!m_connection) {
        return;
    }
    for (size_t i = 0; i < m_keysDown.size(); ++i) {
        if (m_keysDown[i]) {
            fakeKey(static_cast<uint8_t>(i), false);
        }
        if (m_buttonsDown[i]) {
            fakeButton(static_cast<uint8_t>(i), false);
        }
    }
    settle("release of held input");
    m_watch.reset();
    m_connection.reset();
    m_keysDown.reset();
    m_buttonsDown.reset();
    m_wheelRemainder = 0;
    spdlog::info("XtestInputBackend: shut down");
}

bool XtestInputBackend::injectMove(const InputEvent& event) {
    movePointer(event);
    return settle("mouse move");
}

bool XtestInputBackend::injectButton(const InputEvent& event, bool press) {
    movePointer(event);
    fakeButton(kXButtons.at(buttonIndex(event.button)), press);
    return settle("mouse button");
}

bool XtestInputBackend::injectWheel(const InputEvent& event) {
    movePointer(event);
    m_wheelRemainder += event.wheelDelta;
    const int clicks = m_wheelRemainder / kWheelNotch;
    m_wheelRemainder %= kWheelNotch;
    const uint8_t button = clicks > 0 ? kWheelUpButton : kWheelDownButton;
    for (int i = 0; i < std::abs(clicks); ++i) {
        fakeButton(button, true);
        fakeButton(button, false);
    }
    return settle("mouse wheel");
}

bool XtestInputBackend::injectKey(const InputEvent& event, bool press) {
    readEvents();
    const KeyTranslation* key = keyForEvent(event);
    if (key == nullptr) {
        spdlog::warn("XtestInputBackend: unknown key, virtual key 0x{:02X}, scan code 0x{:02X}",
                     event.keyCode, event.scanCode);
        return false;
    }
    fakeKey(static_cast<uint8_t>(key->evdevCode + kXKeycodeOffset), press);
    return settle("keyboard");
}

void XtestInputBackend::movePointer(const InputEvent& event) {
    readEvents();
    xcb_test_fake_input(m_connection->handle(), XCB_MOTION_NOTIFY, false, XCB_CURRENT_TIME,
                        m_connection->root(),
                        pixelAt(clampedFraction(event.x), m_monitor.x, m_monitor.width),
                        pixelAt(clampedFraction(event.y), m_monitor.y, m_monitor.height), 0);
}

void XtestInputBackend::fakeButton(uint8_t button, bool press) {
    xcb_test_fake_input(m_connection->handle(), press ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE,
                        button, XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    m_buttonsDown[button] = press;
}

void XtestInputBackend::fakeKey(uint8_t keycode, bool press) {
    xcb_test_fake_input(m_connection->handle(), press ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keycode,
                        XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    m_keysDown[keycode] = press;
}

/// Waits until the server has processed everything sent; false when it refused any of it.
bool XtestInputBackend::settle(const char* kind) {
    xcb_connection_t* const connection = m_connection->handle();
    const XcbReply<xcb_get_input_focus_reply_t> processed(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (const int error = m_connection->error()) {
        spdlog::warn("XtestInputBackend: XTEST ({}) failed, connection lost, error {}", kind,
                     error);
        return false;
    }
    if (const uint8_t error = readEvents()) {
        spdlog::warn("XtestInputBackend: XTEST ({}) failed, error {}", kind, error);
        return false;
    }
    return true;
}

void XtestInputBackend::updatePrimaryMonitor() {
    m_monitor = primaryMonitor(*m_connection).value_or(m_monitor);
}

/// Reads what the server has sent unasked; returns the code of the last error among it, or 0.
uint8_t XtestInputBackend::readEvents() {
    uint8_t error = 0;
    bool monitorsChanged = false;
    while (const XcbEvent event{xcb_poll_for_event(m_connection->handle())}) {
        if (eventType(*event) == 0) {
            error = reinterpret_cast<const xcb_generic_error_t*>(event.get())->error_code;
        } else if (m_watch->isMonitorChange(*event)) {
            monitorsChanged = true;
        }
    }
    if (monitorsChanged) {
        updatePrimaryMonitor();
    }
    return error;
}

std::unique_ptr<IInputBackend> createInputBackend() {
    return std::make_unique<XtestInputBackend>();
}

} // namespace corvane
