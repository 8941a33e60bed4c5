#pragma once

#include "media/CapturedFrame.h"

#include <atomic>
#include <memory>

namespace corvane {

/// What is wanted of the shared screen's pictures, and the last of them, to be given again. Wishes
/// are made on the main thread and met on the capture thread.
class PictureRequests {
public:
    /// Main thread. Wants a key frame, and soon even if the screen stands still. False when one is
    /// in the making: it answers every request until it is done, since encoding it may take longer
    /// than a viewer waits before it asks again.
    bool requestKeyframe();

    /// Main thread. The same because the viewer has lost something: the key frame is then to be
    /// sent twice. It takes long to make and many datagrams to carry, and the loss of one of them
    /// costs another one.
    bool requestRepair();

    /// Capture thread, as everything below.
    void setLastPicture(std::shared_ptr<const CapturedFrame> picture) {
        m_lastPicture = std::move(picture);
    }

    /// A copy of the last picture with the time of now; null before the first.
    std::unique_ptr<CapturedFrame> repeatedPicture() const;

    /// Whether the last picture is to be shown again. Asking takes the wish.
    bool takeRepeat() { return m_repeatWanted.exchange(false); }

    /// A frame marked as the requested key frame has been encoded, or could not be. From here on a
    /// request asks for another one.
    void keyframeDone() { m_keyframeInMaking = false; }

    /// Whether the key frame is to be sent twice. Asking takes the wish.
    bool takeRepair() { return m_repairWanted.exchange(false); }

private:
    std::atomic<bool> m_keyframeInMaking{false};
    std::atomic<bool> m_repeatWanted{false};
    std::atomic<bool> m_repairWanted{false};
    std::shared_ptr<const CapturedFrame> m_lastPicture;
};

} // namespace corvane
