#pragma once

#include "session/LossDetector.h"

#include <QObject>
#include <QTimer>

#include <chrono>

namespace corvane {

/// Sees to it that the viewer's picture becomes whole again after a video packet was lost, since
/// everything that follows builds on it: asks for a key frame, and goes on asking until one is
/// there. Main thread.
class PictureRecovery : public QObject {
    Q_OBJECT

public:
    struct Timings {
        /// How long a message may be on its way after a later one has arrived.
        std::chrono::milliseconds reorderWindow{200};
        /// The least time between two requests.
        std::chrono::milliseconds interval{500};
        /// How long to wait for anything at all. Long, since the encoder's first picture takes
        /// seconds on a busy machine, and asking for another one then delays what follows.
        std::chrono::milliseconds firstPicture{10'000};
    };

    explicit PictureRecovery(QObject* parent = nullptr) : PictureRecovery(Timings{}, parent) {}
    PictureRecovery(Timings timings, QObject* parent = nullptr);

    /// From now on a picture is due.
    void start();
    void stop();

    /// A message of either channel was opened. `counter` is its sender's. False when it is a
    /// repetition, or comes too late for anything.
    bool onMessage(uint64_t counter);

    /// A picture came out of the message with this counter.
    void onPicture(uint64_t counter, bool keyframe);

    /// A packet gave no picture.
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
    LossDetector::Time m_notBefore; ///< of the next request
    bool m_running = false;
    bool m_whole = false;
};

} // namespace corvane
