#pragma once

#include "common/ByteVector.h"

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>

namespace corvane {

/// Takes sealed packets from the capture thread to the main thread, and holds the capture thread
/// back while they cannot be sent. One per stream, so no packet outlives a session.
///
/// Packets build on one another, so none is dropped while the queue is open. Instead, back-pressure
/// pauses the capture thread once `capacity` bytes wait because the main thread is busy.
class PacketQueue {
public:
    /// Many seconds of video, and room for the largest key frame.
    static constexpr size_t kDefaultCapacity = 32 * 1024 * 1024;

    explicit PacketQueue(size_t capacity = kDefaultCapacity) : m_capacity(capacity) {}

    /// Whether packets can be sent at all. Off initially.
    void setFlowing(bool flowing);

    /// Drops the waiting packets and releases the capture thread for good.
    void close();

    /// Capture thread: waits until packets flow and fewer than `capacity` bytes wait, however large
    /// the next packet is. False once closed.
    bool waitForRoom();

    /// Capture thread: appends a packet without waiting. True when the queue was empty, so that the
    /// main thread must be woken.
    bool push(ByteVector packet);

    /// Main thread: the oldest packet; no value when none waits.
    std::optional<ByteVector> pop();

private:
    const size_t m_capacity;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<ByteVector> m_packets;
    size_t m_bytes = 0; ///< of all `m_packets`
    bool m_flowing = false;
    bool m_closed = false;
};

} // namespace corvane
