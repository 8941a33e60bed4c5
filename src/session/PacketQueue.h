#pragma once

#include "common/ByteVector.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <optional>

namespace corvane {

/// Takes sealed packets from the capture thread to the main thread, and tells the capture thread
/// when the next one may be made. One per stream, so no packet outlives a session.
///
/// Packets build on one another, so none is dropped while the queue is open. Instead, no picture is
/// taken while an earlier packet waits or the line is busy: what is sent next is always new.
class PacketQueue {
public:
    /// Whether packets can be sent now. Off initially.
    void setFlowing(bool flowing);

    /// Drops the waiting packets and releases the capture thread for good.
    void close();

    /// Capture thread: waits until packets flow and none is left. False when that takes longer, or
    /// the queue was closed.
    bool waitForRoom(std::chrono::milliseconds timeout);

    /// Capture thread: appends a packet without waiting. True when the queue was empty, so that the
    /// main thread must be woken.
    bool push(ByteVector packet);

    /// Main thread: the oldest packet; no value when none waits.
    std::optional<ByteVector> pop();

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<ByteVector> m_packets;
    bool m_flowing = false;
    bool m_closed = false;
};

} // namespace corvane
