#include "input/windows/Win32InputBackend.h"

#include <spdlog/spdlog.h>

#include <array>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr double kAbsoluteRange = 65535.0;

/// How `SendInput` names a button.
struct ButtonFlags {
    DWORD press;
    DWORD release;
    DWORD data;
};

/// Indexed by `buttonIndex`.
constexpr std::array<ButtonFlags, kMouseButtons> kButtonFlags{{
    {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, 0},
    {MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, 0},
    {MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP, 0},
    {MOUSEEVENTF_XDOWN, MOUSEEVENTF_XUP, XBUTTON1},
    {MOUSEEVENTF_XDOWN, MOUSEEVENTF_XUP, XBUTTON2},
}};

} // namespace

Win32InputBackend::Win32InputBackend(InputFunctions functions)
    : InputBackend("Win32InputBackend"), m_functions(std::move(functions)) {}

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

bool Win32InputBackend::injectMove(const InputEvent& event) {
    return sendMouse(event, 0, 0, "mouse move");
}

bool Win32InputBackend::injectButton(const InputEvent& event, bool press) {
    const ButtonFlags& flags = kButtonFlags.at(buttonIndex(event.button));
    return sendMouse(event, press ? flags.press : flags.release, flags.data, "mouse button");
}

bool Win32InputBackend::injectWheel(const InputEvent& event) {
    return sendMouse(event, MOUSEEVENTF_WHEEL, static_cast<DWORD>(event.wheelDelta), "mouse wheel");
}

/// The scan code is passed on unchanged, including bits above the code itself.
bool Win32InputBackend::injectKey(const InputEvent& event, bool press) {
    INPUT record = {};
    record.type = INPUT_KEYBOARD;
    record.ki.wVk = static_cast<WORD>(event.keyCode);
    record.ki.wScan = static_cast<WORD>(event.scanCode);
    record.ki.dwFlags = (press ? 0U : KEYEVENTF_KEYUP) |
                        (event.extended ? KEYEVENTF_EXTENDEDKEY : 0U) |
                        (event.scanCode != 0 ? KEYEVENTF_SCANCODE : 0U);
    return send(record, "keyboard");
}

/// Without MOUSEEVENTF_VIRTUALDESK the axes span the primary monitor.
bool Win32InputBackend::sendMouse(const InputEvent& event, DWORD action, DWORD data,
                                  const char* kind) {
    INPUT record = {};
    record.type = INPUT_MOUSE;
    record.mi.dx = std::lround(clampedFraction(event.x) * kAbsoluteRange);
    record.mi.dy = std::lround(clampedFraction(event.y) * kAbsoluteRange);
    record.mi.mouseData = data;
    record.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | action;
    return send(record, kind);
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
