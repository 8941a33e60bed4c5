#pragma once

#include "common/ByteVector.h"
#include "media/DecodedFrame.h"

#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace corvane {

/// Takes packets from the main thread to the decode thread, and what became of them back. Bounded
/// in both directions: packets that find no room are refused, and of the pictures only the newest
/// waits.
class DecodeQueue {
public:
    struct Limits {
        /// Seconds of video, so that what a stalled network delivers at once fits as well. More
        /// would let a decoder that is too slow fall further behind.
        size_t packets = 60;
        /// Room for the largest packet, even if others wait.
        size_t bytes = 32 * 1024 * 1024;
    };

    struct Packet {
        uint64_t counter = 0; ///< of the message that carried it
        ByteVector bytes;
    };

    /// What became of packets since the results were last taken.
    struct Results {
        std::shared_ptr<DecodedFrame> picture; ///< the newest; null when there is none
        size_t overtaken = 0;                  ///< older pictures, which are dropped
        size_t failures = 0;                   ///< packets without a picture
        uint64_t lastFailure = 0;              ///< the counter of the last of them
    };

    /// `wake` is called on the decode thread when there are results to take, once until they are
    /// taken, and never after `close`. It must not call the queue.
    DecodeQueue(Limits limits, std::function<void()> wake);

    /// Main thread: moves a packet to the end of the queue, of any size if it is the only one.
    /// False, and the packet is left alone, when there is no room or the queue is closed.
    bool push(Packet& packet);

    /// Main thread: drops the waiting packets and returns their number.
    size_t clear();

    Results takeResults();

    /// Drops everything for good and releases the decode thread.
    void close();

    /// Decode thread: waits for the oldest packet; no value once the queue is closed.
    std::optional<Packet> waitForPacket();

    /// Decode thread: the picture of the packet with this counter, or null when it yields none.
    void finish(uint64_t counter, std::shared_ptr<DecodedFrame> picture);

private:
    bool hasRoomFor(const Packet& packet) const;

    const Limits m_limits;
    std::function<void()> m_wake;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Packet> m_packets;
    size_t m_bytes = 0; ///< of all `m_packets`
    Results m_results;
    bool m_hasResults = false;
    bool m_closed = false;
};

} // namespace corvane
