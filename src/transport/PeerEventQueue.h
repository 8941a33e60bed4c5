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

/// Passes events from a library's threads to the thread of one object, in order, in bounded memory,
/// and never after the object has closed the queue.
///
/// The object and the library's callbacks share ownership, so a late callback finds a closed queue
/// rather than a destroyed object.
class PeerEventQueue : public std::enable_shared_from_this<PeerEventQueue> {
public:
    using Event = std::function<void()>;
    using Clock = std::chrono::steady_clock;

    /// Events run on the thread of `owner`. At most `maxPendingBytes` may be pending.
    PeerEventQueue(QObject* owner, size_t maxPendingBytes);

    /// Any thread. Runs `event`, which holds `bytes` bytes, on the owner's thread. Blocks while the
    /// queue is full: the library then stops reading, which slows the sender down.
    void post(Event event, size_t bytes = 0);

    /// Any thread. Makes a running `wait` return.
    void wake();

    /// Owner's thread. Blocks until an event is pending, `wake` is called or the deadline passes.
    void wait(Clock::time_point deadline);

    /// Owner's thread. Runs the events pending now. The event loop also does so by itself.
    void deliver();

    /// Owner's thread. Drops pending events and refuses further ones; none runs afterwards.
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
