#include "SharedLoop.h"

#include <spdlog/spdlog.h>

#include <system_error>

namespace corvane {

SharedLoop::SharedLoop() {
    try {
        m_helper = std::thread(&SharedLoop::help, this);
    } catch (const std::system_error& error) {
        spdlog::warn("SharedLoop: no helper thread ({})", error.what());
    }
}

SharedLoop::~SharedLoop() {
    {
        const std::lock_guard lock(m_mutex);
        m_closing = true;
    }
    m_offered.notify_one();
    if (m_helper.joinable()) {
        m_helper.join();
    }
}

void SharedLoop::run(int steps, const std::function<void(int)>& step) {
    m_steps = steps;
    m_next = 0;
    if (steps > 1) {
        {
            const std::lock_guard lock(m_mutex);
            m_step = &step;
        }
        m_offered.notify_one();
    }
    takeSteps(step);
    std::unique_lock lock(m_mutex);
    m_step = nullptr;
    m_helped.wait(lock, [this] { return !m_helping; });
}

void SharedLoop::help() {
    std::unique_lock lock(m_mutex);
    while (true) {
        m_offered.wait(lock, [this] { return m_step != nullptr || m_closing; });
        if (m_closing) {
            return;
        }
        const std::function<void(int)>& step = *m_step;
        m_step = nullptr;
        m_helping = true;
        lock.unlock();
        takeSteps(step);
        lock.lock();
        m_helping = false;
        m_helped.notify_one();
    }
}

void SharedLoop::takeSteps(const std::function<void(int)>& step) {
    for (int i = m_next++; i < m_steps; i = m_next++) {
        step(i);
    }
}

} // namespace corvane
