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

    /// The message with this counter yielded a picture.
    void onPicture(uint64_t counter, bool keyframe);

    /// A packet yielded no picture.
    void onDecodeFailure();

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
    bool m_running = false;
    bool m_whole = false;
};

} // namespace corvane
