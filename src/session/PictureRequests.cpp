#include "session/PictureRequests.h"

#include "common/MonotonicClock.h"

namespace corvane {

bool PictureRequests::requestKeyframe() {
    if (m_keyframeInMaking.exchange(true)) {
        return false;
    }
    m_repeatWanted = true;
    return true;
}

bool PictureRequests::requestRepair() {
    m_repairWanted = true;
    return requestKeyframe();
}

std::unique_ptr<CapturedFrame> PictureRequests::repeatedPicture() const {
    if (!m_lastPicture) {
        return nullptr;
    }
    auto frame = std::make_unique<CapturedFrame>();
    frame->data = copyBytes(m_lastPicture->data);
    frame->width = m_lastPicture->width;
    frame->height = m_lastPicture->height;
    frame->stride = m_lastPicture->stride;
    frame->timestamp = monotonicMilliseconds();
    return frame;
}

} // namespace corvane
