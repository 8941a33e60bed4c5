#include "input/windows/Win32InputBackend.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr double kAbsoluteRange = 65535.0;

/// How `SendInput` names a button; no flags for an unknown one.
struct ButtonFlags {
    DWORD press = 0;
    DWORD release = 0;
    DWORD data = 0;
};

ButtonFlags buttonFlags(MouseButton button) {
    switch (button) {
    case MouseButton::Left:
        return {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP};
    case MouseButton::Right:
        return {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP};
    case MouseButton::Middle:
        return {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP};
    case MouseButton::Back:
        return {MOUSEEVENTF_XDOWN, MOUSEEVENTF_XUP, XBUTTON1};
    case MouseButton::Forward:
        return {MOUSEEVENTF_XDOWN, MOUSEEVENTF_XUP, XBUTTON2};
    }
    return {};
}

/// The place on the axis that a fraction of it means; anything but a number counts as 0.
LONG absolute(double fraction) {
    const double inside = fraction > 0.0 ? std::min(fraction, 1.0) : 0.0;
    return std::lround(inside * kAbsoluteRange);
}

/// Without MOUSEEVENTF_VIRTUALDESK the axes span the primary monitor.
INPUT mouseRecord(const InputEvent& event, DWORD action, DWORD data) {
    INPUT record = {};
    record.type = INPUT_MOUSE;
    record.mi.dx = absolute(event.x);
    record.mi.dy = absolute(event.y);
    record.mi.mouseData = data;
    record.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | action;
    return record;
}

} // namespace

Win32InputBackend::Win32InputBackend(InputFunctions functions)
    : m_functions(std::move(functions)) {}

Win32InputBackend::~Win32InputBackend() {
    Win32InputBackend::shutdown();
}

bool Win32InputBackend::initialize() {
    m_initialized = true;
    spdlog::info("Win32InputBackend: initialized");
    return true;
}

void Win32InputBackend::shutdown() {
    m_initialized = false;
    spdlog::info("Win32InputBackend: shut down");
}

bool Win32InputBackend::injectEvent(const InputEvent& event) {
    if (!m_initialized) {
        spdlog::warn("Win32InputBackend: injectEvent called before initialization");
        return false;
    }
    switch (event.type) {
    case InputEventType::MouseMove:
        return send(mouseRecord(event, 0, 0), "mouse move");
    case InputEventType::MouseButtonPress:
        return injectButton(event, true);
    case InputEventType::MouseButtonRelease:
        return injectButton(event, false);
    case InputEventType::MouseWheel:
        return send(mouseRecord(event, MOUSEEVENTF_WHEEL, static_cast<DWORD>(event.wheelDelta)),
                    "mouse wheel");
    case InputEventType::KeyPress:
        return injectKey(event, 0);
    case InputEventType::KeyRelease:
        return injectKey(event, KEYEVENTF_KEYUP);
    case InputEventType::None:
        break;
    }
    spdlog::warn("Win32InputBackend: unknown event type {}", static_cast<int>(event.type));
    return false;
}

bool Win32InputBackend::injectButton(const InputEvent& event, bool press) {
    const ButtonFlags flags = buttonFlags(event.button);
    if (flags.press == 0) {
        spdlog::warn("Win32InputBackend: unknown mouse button {}", static_cast<int>(event.button));
        return false;
    }
    return send(mouseRecord(event, press ? flags.press : flags.release, flags.data),
                "mouse button");
}

/// The scan code goes out as it came, bits above the code included.
bool Win32InputBackend::injectKey(const InputEvent& event, DWORD flags) {
    INPUT record = {};
    record.type = INPUT_KEYBOARD;
    record.ki.wVk = static_cast<WORD>(event.keyCode);
    record.ki.wScan = static_cast<WORD>(event.scanCode);
    record.ki.dwFlags = flags | (event.extended ? KEYEVENTF_EXTENDEDKEY : 0U) |
                        (event.scanCode != 0 ? KEYEVENTF_SCANCODE : 0U);
    return send(record, "keyboard");
}

bool Win32InputBackend::send(INPUT record, const char* kind) {
    if (m_functions.sendInput(1, &record, sizeof(record)) == 1) {
        return true;
    }
    spdlog::warn("Win32InputBackend: SendInput ({}) failed, error {}", kind,
                 m_functions.lastError());
    return false;
}

std::unique_ptr<IInputBackend> createInputBackend() {
    return std::make_unique<Win32InputBackend>();
}

} // namespace corvane
