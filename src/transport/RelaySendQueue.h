#pragma once

#include "transport/ITransport.h"

#include <QByteArray>

#include <array>
#include <deque>
#include <optional>

namespace corvane {

/// Frames that wait for a connection which carries everything: whatever is urgent goes first, and
/// frames of the same urgency keep their order. Remembers what it gave away, so that the caller can
/// tell what of it has not left yet. Main thread.
class RelaySendQueue {
public:
    enum class Urgency { Control, Video, Bulk };

    void push(Urgency urgency, QByteArray frame);

    /// The next frame to send; no value when none waits.
    std::optional<QByteArray> pop();

    bool isEmpty() const { return m_bytes == 0; }

    /// Bytes that wait here.
    qint64 bytes() const { return m_bytes; }

    /// Bytes of video that wait here or are among the last `unsent` bytes given away.
    qint64 videoBytes(qint64 unsent);

    void clear();

private:
    struct Given {
        qint64 bytes;
        bool video;
    };

    std::deque<QByteArray>& queueOf(Urgency urgency) {
        return m_queues[static_cast<size_t>(urgency)];
    }

    std::array<std::deque<QByteArray>, 3> m_queues; ///< most urgent first
    qint64 m_bytes = 0;
    qint64 m_videoBytes = 0;   ///< the part of `m_bytes` that is video
    std::deque<Given> m_given; ///< newest last; older ones have left
};

} // namespace corvane
