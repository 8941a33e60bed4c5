#include "session/RepeatingScreen.h"

#include "session/PictureRequests.h"

#include <array>
#include <utility>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/// Times since the last change. Three of them, for a network that loses one packet in twenty.
constexpr std::array kRepeatAfter{300ms, 1000ms, 3000ms};

} // namespace

RepeatingScreen::RepeatingScreen(std::unique_ptr<IScreenCaptureBackend> screen,
                                 PictureRequests& requests)
    : m_screen(std::move(screen)), m_requests(requests) {}

std::unique_ptr<CapturedFrame> RepeatingScreen::captureFrame() {
    if (auto frame = m_screen->captureFrame()) {
        m_changed = Clock::now();
        m_repeats = 0;
        return frame;
    }
    if (!m_screen->isInitialized() || !isRepeatDue()) {
        return nullptr;
    }
    return m_requests.repeatedPicture();
}

bool RepeatingScreen::isRepeatDue() {
    if (m_requests.takeRepeat()) {
        return true;
    }
    if (m_repeats == kRepeatAfter.size() || Clock::now() - m_changed < kRepeatAfter[m_repeats]) {
        return false;
    }
    ++m_repeats;
    return true;
}

} // namespace corvane
