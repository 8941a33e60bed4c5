#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

class QObject;

namespace corvane {

/// Brings what happens on the threads of a library to the thread of one object: in order, in
/// bounded memory, and never after the object has closed the queue.
///
/// Shared by the object and the library's callbacks, so that a late callback finds a closed queue
/// instead of a dead object.
class PeerEventQueue : public std::enable_shared_from_this<PeerEventQueue> {
public:
    using Event = std::function<void()>;
    using Clock = std::chrono::steady_clock;

    /// `owner`: on whose thread events run. `maxPendingBytes`: how much may wait for it.
    PeerEventQueue(QObject* owner, size_t maxPendingBytes);

    /// Any thread. Has `event`, which holds `bytes`, run on the owner's thread. Blocks while as
    /// much as may wait is waiting; the library then stops reading, and the sender feels it.
    void post(Event event, size_t bytes = 0);

    /// Any thread. Lets a `wait` return.
    void wake();

    /// Owner's thread: until there is an event, `wake` was called, or the deadline has passed.
    void wait(Clock::time_point deadline);

    /// Owner's thread: runs what is pending by now. The event loop does it unasked.
    void deliver();

    /// Owner's thread: drops what is pending and refuses the rest. Runs nothing afterwards.
    void close();

private:
    struct Entry {
        Event event;
        size_t bytes = 0;
    };

    void schedule();

    std::mutex m_mutex;
    std::condition_variable m_roomAvailable;
    std::condition_variable m_news;
    QObject* m_owner; ///< null once closed
    const size_t m_maxPendingBytes;
    size_t m_pendingBytes = 0;
    std::deque<Entry> m_pending;
    bool m_scheduled = false;
    bool m_woken = false;
};

} // namespace corvane
