#include "input/InputBackend.h"

#include <spdlog/spdlog.h>

#include <algorithm>

namespace corvane {

bool InputBackend::injectEvent(const InputEvent& event) {
    if (!isInitialized()) {
        spdlog::warn("{}: injectEvent called before initialization", m_name);
        return false;
    }
    switch (event.type) {
    case InputEventType::MouseMove:
        return injectMove(event);
    case InputEventType::MouseButtonPress:
        return injectKnownButton(event, true);
    case InputEventType::MouseButtonRelease:
        return injectKnownButton(event, false);
    case InputEventType::MouseWheel:
        return injectWheel(event);
    case InputEventType::KeyPress:
        return injectKey(event, true);
    case InputEventType::KeyRelease:
        return injectKey(event, false);
    case InputEventType::None:
        break;
    }
    spdlog::warn("{}: unknown event type {}", m_name, static_cast<int>(event.type));
    return false;
}

double InputBackend::clampedFraction(double fraction) {
    return fraction > 0.0 ? std::min(fraction, 1.0) : 0.0;
}

bool InputBackend::injectKnownButton(const InputEvent& event, bool press) {
    if (event.button < MouseButton::Left || event.button > MouseButton::Forward) {
        spdlog::warn("{}: unknown mouse button {}", m_name, static_cast<int>(event.button));
        return false;
    }
    return injectButton(event, press);
}

} // namespace corvane
