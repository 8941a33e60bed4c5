#include "input/InputForwarder.h"

#include <spdlog/spdlog.h>

#include <algorithm>

namespace corvane {

InputForwarder::InputForwarder(std::unique_ptr<IInputBackend> backend, QObject* parent)
    : QObject(parent), m_backend(std::move(backend)) {
    m_coalescingTimer.setSingleShot(true);
    connect(&m_coalescingTimer, &QTimer::timeout, this, &InputForwarder::flushPendingMouseMove);
}

InputForwarder::~InputForwarder() {
    flushPendingMouseMove();
    m_coalescingTimer.stop();
    m_backend.reset();
}

void InputForwarder::processEvent(const InputEvent& event) {
    if (!m_backend) {
        spdlog::warn("InputForwarder: no backend available");
        return;
    }
    if (event.type == InputEventType::MouseMove) {
        m_pendingMove = event;
        m_hasPendingMove = true;
        if (!m_coalescingTimer.isActive()) {
            flushPendingMouseMove();
            m_coalescingTimer.start(std::max(1000 / m_maxMouseRate, 1));
        }
        return;
    }
    if (!m_backend->injectEvent(event)) {
        spdlog::warn("InputForwarder: failed to inject event type {}",
                     static_cast<int>(event.type));
    }
}

void InputForwarder::flushPendingMouseMove() {
    if (m_hasPendingMove && m_backend) {
        m_backend->injectEvent(m_pendingMove);
    }
    m_hasPendingMove = false;
}

} // namespace corvane
