#include "session/RepeatingScreen.h"

#include "session/PacketQueue.h"
#include "session/PictureRequests.h"

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

namespace {

using namespace std::chrono_literals;

/// Times since the last change, for a network that loses one packet in twenty. The first one is
/// longer than the pauses of somebody who types or scrolls, and the third makes text as sharp as it
/// gets before a reader has found his place.
constexpr std::array kRepeatAfter{250ms, 500ms, 1000ms, 3000ms};

} // namespace

RepeatingScreen::RepeatingScreen(std::unique_ptr<IScreenCaptureBackend> screen,
                                 PictureRequests& requests, PacketQueue& packets)
    : m_screen(std::move(screen)), m_requests(requests), m_packets(packets) {}

std::unique_ptr<CapturedFrame> RepeatingScreen::captureFrame() {
    if (!m_packets.waitForRoom(0ms)) {
        return nullptr;
    }
    if (auto frame = m_screen->captureFrame()) {
        m_changed = Clock::now();
        m_repeats = 0;
        return frame;
    }
    return m_screen->isInitialized() ? repeatedPicture() : nullptr;
}

ScreenWait RepeatingScreen::waitForChange(std::chrono::milliseconds timeout) {
    if (!m_packets.waitForRoom(0ms)) {
        return m_packets.waitForRoom(timeout) ? ScreenWait::MayHaveChanged : ScreenWait::Nothing;
    }
    const ScreenWait result = m_screen->waitForChange(std::min(timeout, timeToRepeat()));
    return result == ScreenWait::Nothing && timeToRepeat() == 0ms ? ScreenWait::MayHaveChanged
                                                                  : result;
}

/// Null when it is not due.
std::unique_ptr<CapturedFrame> RepeatingScreen::repeatedPicture() {
    if (m_requests.takeRepeat()) {
        m_changed = Clock::now();
        m_repeats = 0;
        return m_requests.repeatedPicture();
    }
    if (timeToRepeat() > 0ms) {
        return nullptr;
    }
    ++m_repeats;
    auto frame = m_requests.repeatedPicture();
    if (frame) {
        frame->refinement = static_cast<int>(m_repeats);
    }
    return frame;
}

std::chrono::milliseconds RepeatingScreen::timeToRepeat() const {
    if (m_repeats == kRepeatAfter.size()) {
        return std::chrono::milliseconds::max();
    }
    const auto due = m_changed + kRepeatAfter[m_repeats] - Clock::now();
    return std::max(std::chrono::ceil<std::chrono::milliseconds>(due), 0ms);
}

} // namespace corvane
