#pragma once

#include "session/LossDetector.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace corvane {

/// Restores the viewer's picture after the loss of a video packet, on which everything later
/// builds: requests a key frame, and repeats the request until one arrives. Main thread.
class PictureRecovery : public QObject {
    Q_OBJECT

public:
    struct Timings {
        /// How long a message may still be under way after a later one has arrived.
        std::chrono::milliseconds reorderWindow{200};
        /// The shortest time between two requests.
        std::chrono::milliseconds interval{500};
        /// How long to wait for the first picture. Long, since the encoder's first picture takes
        /// seconds on a busy machine, and requesting another one then delays what follows.
        std::chrono::milliseconds firstPicture{10'000};
    };

    explicit PictureRecovery(QObject* parent = nullptr) : PictureRecovery(Timings{}, parent) {}
    PictureRecovery(Timings timings, QObject* parent = nullptr);

    /// Starts waiting for the first picture.
    void start();
    void stop();

    /// A message of either channel was opened; `counter` is its sender's. False when it is a
    /// repetition or too late to be of any use.
    bool onMessage(uint64_t counter);

    /// A key frame has arrived in the message with this counter and is about to be decoded.
    void onKeyframe(uint64_t counter);

    /// The packet in the message with this counter yields no picture. This may turn out when later
    /// ones have arrived; it is of no importance then if a key frame is among them.
    void onDecodeFailure(uint64_t counter);

Q_SIGNALS:
    void keyframeNeeded();

private:
    void look();
    void miss();
    void schedule(std::chrono::milliseconds delay);

    const Timings m_timings;
    LossDetector m_losses;
    QTimer m_timer;
    LossDetector::Time m_notBefore; ///< earliest time of the next request
    uint64_t m_keyframe = 0;        ///< counter of the last key frame
    bool m_running = false;
    bool m_whole = false;
};

} // namespace corvane
