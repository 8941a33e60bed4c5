#include "input/linux/XtestInputBackend.h"

#include "input/linux/KeyTranslation.h"

#include <spdlog/spdlog.h>
#include <xcb/randr.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace corvane {

namespace {

constexpr int kWheelNotch = 120;
constexpr uint8_t kWheelUpButton = 4;
constexpr uint8_t kWheelDownButton = 5;

template <typename T>
using Reply = std::unique_ptr<T, decltype([](T* reply) { std::free(reply); })>;

/// The X button, or 0 for an unknown one. X numbers 4 to 7 are the wheel's.
uint8_t xButton(MouseButton button) {
    switch (button) {
    case MouseButton::Left:
        return 1;
    case MouseButton::Middle:
        return 2;
    case MouseButton::Right:
        return 3;
    case MouseButton::Back:
        return 8;
    case MouseButton::Forward:
        return 9;
    }
    return 0;
}

/// The pixel that a fraction of an edge means; anything but a number counts as 0.
int16_t pixelAt(double fraction, int16_t origin, uint16_t length) {
    const double inside = fraction > 0.0 ? std::min(fraction, 1.0) : 0.0;
    return static_cast<int16_t>(origin + std::lround(inside * (std::max<int>(length, 1) - 1)));
}

} // namespace

XtestInputBackend::XtestInputBackend() = default;

XtestInputBackend::~XtestInputBackend() {
    shutdown();
}

bool XtestInputBackend::initialize() {
    if (m_connection) {
        return true;
    }
    int screenNumber = 0;
    m_connection.reset(xcb_connect(nullptr, &screenNumber));
    if (const int error = xcb_connection_has_error(m_connection.get())) {
        spdlog::error("XtestInputBackend: cannot connect to the X server, error {}", error);
        m_connection.reset();
        return false;
    }
    const auto* xtest = xcb_get_extension_data(m_connection.get(), &xcb_test_id);
    if (xtest == nullptr || !xtest->present) {
        spdlog::error("XtestInputBackend: the X server has no XTEST extension");
        m_connection.reset();
        return false;
    }
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get()));
    for (; screenNumber > 0 && screen.rem > 1; --screenNumber) {
        xcb_screen_next(&screen);
    }
    m_root = screen.data->root;
    watchMonitors();
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
    m_connection.reset();
    m_keysDown.reset();
    m_buttonsDown.reset();
    m_wheelRemainder = 0;
    spdlog::info("XtestInputBackend: shut down");
}

bool XtestInputBackend::injectEvent(const InputEvent& event) {
    if (!m_connection) {
        spdlog::warn("XtestInputBackend: injectEvent called before initialization");
        return false;
    }
    readEvents();
    switch (event.type) {
    case InputEventType::MouseMove:
        movePointer(event);
        return settle("mouse move");
    case InputEventType::MouseButtonPress:
        return injectButton(event, true);
    case InputEventType::MouseButtonRelease:
        return injectButton(event, false);
    case InputEventType::MouseWheel:
        return injectWheel(event);
    case InputEventType::KeyPress:
        return injectKey(event, true);
    case InputEventType::KeyRelease:
        return injectKey(event, false);
    case InputEventType::None:
        break;
    }
    spdlog::warn("XtestInputBackend: unknown event type {}", static_cast<int>(event.type));
    return false;
}

bool XtestInputBackend::injectButton(const InputEvent& event, bool press) {
    const uint8_t button = xButton(event.button);
    if (button == 0) {
        spdlog::warn("XtestInputBackend: unknown mouse button {}", static_cast<int>(event.button));
        return false;
    }
    movePointer(event);
    fakeButton(button, press);
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
    xcb_test_fake_input(m_connection.get(), XCB_MOTION_NOTIFY, false, XCB_CURRENT_TIME, m_root,
                        pixelAt(event.x, m_monitor.x, m_monitor.width),
                        pixelAt(event.y, m_monitor.y, m_monitor.height), 0);
}

void XtestInputBackend::fakeButton(uint8_t button, bool press) {
    xcb_test_fake_input(m_connection.get(), press ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, button,
                        XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    m_buttonsDown[button] = press;
}

void XtestInputBackend::fakeKey(uint8_t keycode, bool press) {
    xcb_test_fake_input(m_connection.get(), press ? XCB_KEY_PRESS : XCB_KEY_RELEASE, keycode,
                        XCB_CURRENT_TIME, XCB_WINDOW_NONE, 0, 0, 0);
    m_keysDown[keycode] = press;
}

/// Waits until the server has seen everything sent; false when it refused any of it.
bool XtestInputBackend::settle(const char* kind) {
    xcb_connection_t* connection = m_connection.get();
    Reply<xcb_get_input_focus_reply_t>(
        xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (const int error = xcb_connection_has_error(connection)) {
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

void XtestInputBackend::watchMonitors() {
    // Monitors that a user declares are announced by the root window alone, all others by RandR.
    const uint32_t rootEvents = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection.get(), m_root, XCB_CW_EVENT_MASK, &rootEvents);
    m_hasMonitors = false;
    m_firstRandrEvent = 0;
    const auto* randr = xcb_get_extension_data(m_connection.get(), &xcb_randr_id);
    if (randr == nullptr || !randr->present) {
        return;
    }
    const Reply<xcb_randr_query_version_reply_t> version(xcb_randr_query_version_reply(
        m_connection.get(), xcb_randr_query_version(m_connection.get(), 1, 5), nullptr));
    m_hasMonitors = version && (version->major_version > 1 || version->minor_version >= 5);
    m_firstRandrEvent = randr->first_event;
    xcb_randr_select_input(m_connection.get(), m_root,
                           XCB_RANDR_NOTIFY_MASK_SCREEN_CHANGE | XCB_RANDR_NOTIFY_MASK_CRTC_CHANGE |
                               XCB_RANDR_NOTIFY_MASK_OUTPUT_CHANGE);
}

void XtestInputBackend::updatePrimaryMonitor() {
    if (const auto monitor = findPrimaryMonitor()) {
        m_monitor = *monitor;
        return;
    }
    const Reply<xcb_get_geometry_reply_t> root(xcb_get_geometry_reply(
        m_connection.get(), xcb_get_geometry(m_connection.get(), m_root), nullptr));
    if (root) {
        m_monitor = {0, 0, root->width, root->height};
    }
}

/// The primary monitor, or the first one where none is primary.
std::optional<xcb_rectangle_t> XtestInputBackend::findPrimaryMonitor() const {
    if (!m_hasMonitors) {
        return std::nullopt;
    }
    const Reply<xcb_randr_get_monitors_reply_t> monitors(xcb_randr_get_monitors_reply(
        m_connection.get(), xcb_randr_get_monitors(m_connection.get(), m_root, true), nullptr));
    if (!monitors) {
        return std::nullopt;
    }
    std::optional<xcb_rectangle_t> choice;
    auto it = xcb_randr_get_monitors_monitors_iterator(monitors.get());
    for (; it.rem > 0; xcb_randr_monitor_info_next(&it)) {
        if (!choice || it.data->primary) {
            choice = xcb_rectangle_t{it.data->x, it.data->y, it.data->width, it.data->height};
        }
    }
    return choice;
}

bool XtestInputBackend::isRandrEvent(uint8_t type) const {
    return m_firstRandrEvent != 0 && (type == m_firstRandrEvent + XCB_RANDR_SCREEN_CHANGE_NOTIFY ||
                                      type == m_firstRandrEvent + XCB_RANDR_NOTIFY);
}

/// Takes what the server has sent unasked; returns the code of the last error among it, 0 for none.
uint8_t XtestInputBackend::readEvents() {
    uint8_t error = 0;
    bool monitorsChanged = false;
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection.get())}) {
        const uint8_t type = event->response_type & 0x7F;
        if (type == 0) {
            error = reinterpret_cast<const xcb_generic_error_t*>(event.get())->error_code;
        } else if (type == XCB_CONFIGURE_NOTIFY || isRandrEvent(type)) {
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
