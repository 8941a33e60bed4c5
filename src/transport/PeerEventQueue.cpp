#include "transport/PeerEventQueue.h"

#include <QMetaObject>
#include <QObject>

#include <utility>

namespace corvane {

PeerEventQueue::PeerEventQueue(QObject* owner, size_t maxPendingBytes)
    : m_owner(owner), m_maxPendingBytes(maxPendingBytes) {}

void PeerEventQueue::post(Event event, size_t bytes) {
    std::unique_lock lock(m_mutex);
    m_roomAvailable.wait(lock, [this, bytes] {
        // An event larger than the maximum is accepted if the queue is empty.
        return m_owner == nullptr || bytes == 0 || m_pendingBytes == 0 ||
               m_pendingBytes + bytes <= m_maxPendingBytes;
    });
    if (m_owner == nullptr) {
        return;
    }
    m_pending.push_back({std::move(event), bytes});
    m_pendingBytes += bytes;
    schedule();
    m_news.notify_all();
}

void PeerEventQueue::wake() {
    const std::lock_guard lock(m_mutex);
    m_woken = true;
    m_news.notify_all();
}

void PeerEventQueue::wait(Clock::time_point deadline) {
    std::unique_lock lock(m_mutex);
    m_news.wait_until(lock, deadline, [this] { return m_woken || !m_pending.empty(); });
    m_woken = false;
}

void PeerEventQueue::deliver() {
    std::unique_lock lock(m_mutex);
    m_scheduled = false;
    // Later arrivals wait for the next turn, so that a busy peer cannot stall the event loop.
    for (size_t left = m_pending.size(); left > 0 && !m_pending.empty(); --left) {
        const Entry entry = std::move(m_pending.front());
        m_pending.pop_front();
        m_pendingBytes -= entry.bytes;
        m_roomAvailable.notify_all();
        lock.unlock();
        entry.event();
        lock.lock();
    }
    if (!m_pending.empty()) {
        schedule();
    }
}

void PeerEventQueue::close() {
    std::deque<Entry> dropped;
    const std::lock_guard lock(m_mutex);
    m_owner = nullptr;
    m_pending.swap(dropped);
    m_pendingBytes = 0;
    m_roomAvailable.notify_all();
    m_news.notify_all();
}

void PeerEventQueue::schedule() {
    if (m_scheduled) {
        return;
    }
    m_scheduled = true;
    QMetaObject::invokeMethod(
        m_owner, [self = shared_from_this()] { self->deliver(); }, Qt::QueuedConnection);
}

} // namespace corvane
