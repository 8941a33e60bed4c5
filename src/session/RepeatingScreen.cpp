#include "session/RepeatingScreen.h"

#include "common/MonotonicClock.h"

#include <utility>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/// After the last change. Three, for a network that loses one packet in twenty.
constexpr std::array kRepeatAfter{300ms, 1000ms, 3000ms};

} // namespace

RepeatingScreen::RepeatingScreen(std::unique_ptr<IScreenCaptureBackend> screen, LastFrame lastFrame)
    : m_screen(std::move(screen)), m_lastFrame(std::move(lastFrame)) {}

std::unique_ptr<CapturedFrame> RepeatingScreen::captureFrame() {
    if (auto frame = m_screen->captureFrame()) {
        m_changed = Clock::now();
        m_repeats = 0;
        return frame;
    }
    if (!m_screen->isInitialized() || !isRepeatDue()) {
        return nullptr;
    }
    const auto last = m_lastFrame();
    if (!last) {
        return nullptr;
    }
    auto frame = std::make_unique<CapturedFrame>();
    frame->data = copyBytes(last->data);
    frame->width = last->width;
    frame->height = last->height;
    frame->stride = last->stride;
    frame->timestamp = monotonicMilliseconds();
    return frame;
}

bool RepeatingScreen::isRepeatDue() {
    if (m_repeatRequested.exchange(false)) {
        return true;
    }
    if (m_repeats == kRepeatAfter.size() || Clock::now() - m_changed < kRepeatAfter[m_repeats]) {
        return false;
    }
    ++m_repeats;
    return true;
}

} // namespace corvane
