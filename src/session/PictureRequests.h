#pragma once

#include "media/CapturedFrame.h"

#include <atomic>
#include <memory>

namespace corvane {

/// The pending requests for pictures of the shared screen, and the last picture, to be shown again.
/// Requests are made on the main thread and met on the capture thread.
class PictureRequests {
public:
    /// Main thread. Requests a key frame, soon even if the screen does not change. False when one
    /// is already being made: it meets every request until it is done, since encoding it may take
    /// longer than a viewer waits before it asks again.
    bool requestKeyframe();

    /// Main thread. Requests a key frame because the viewer has lost something. It is sent twice:
    /// it takes long to make and many datagrams to carry, and losing one of them would cost another
    /// key frame.
    bool requestRepair();

    /// Capture thread, like everything below.
    void setLastPicture(std::shared_ptr<const CapturedFrame> picture) {
        m_lastPicture = std::move(picture);
    }

    /// A copy of the last picture, stamped with the current time; null before the first.
    std::unique_ptr<CapturedFrame> repeatedPicture() const;

    /// Whether the last picture is to be shown again. Clears the request.
    bool takeRepeat() { return m_repeatWanted.exchange(false); }

    /// A frame marked as the requested key frame has been encoded, or could not be. From here on a
    /// request asks for another one.
    void keyframeDone() { m_keyframeInMaking = false; }

    /// Whether the key frame is to be sent twice. Clears the request.
    bool takeRepair() { return m_repairWanted.exchange(false); }

private:
    std::atomic<bool> m_keyframeInMaking{false};
    std::atomic<bool> m_repeatWanted{false};
    std::atomic<bool> m_repairWanted{false};
    std::shared_ptr<const CapturedFrame> m_lastPicture;
};

} // namespace corvane
