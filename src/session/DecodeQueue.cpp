#include "session/DecodeQueue.h"

#include <utility>

namespace corvane {

DecodeQueue::DecodeQueue(Limits limits, std::function<void()> wake)
    : m_limits(limits), m_wake(std::move(wake)) {}

bool DecodeQueue::push(Packet& packet) {
    {
        const std::lock_guard lock(m_mutex);
        if (m_closed || !hasRoomFor(packet)) {
            return false;
        }
        m_bytes += packet.bytes.size();
        m_packets.push_back(std::move(packet));
    }
    m_changed.notify_one();
    return true;
}

bool DecodeQueue::hasRoomFor(const Packet& packet) const {
    return m_packets.empty() ||
           (m_packets.size() < m_limits.packets && m_bytes + packet.bytes.size() <= m_limits.bytes);
}

size_t DecodeQueue::clear() {
    std::deque<Packet> dropped; // freed without the lock
    const std::lock_guard lock(m_mutex);
    dropped.swap(m_packets);
    m_bytes = 0;
    return dropped.size();
}

DecodeQueue::Results DecodeQueue::takeResults() {
    const std::lock_guard lock(m_mutex);
    m_hasResults = false;
    return std::exchange(m_results, {});
}

void DecodeQueue::close() {
    {
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        m_packets.clear();
        m_bytes = 0;
        m_results = {};
    }
    m_changed.notify_one();
}

std::optional<DecodeQueue::Packet> DecodeQueue::waitForPacket() {
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_closed || !m_packets.empty(); });
    if (m_closed) {
        return std::nullopt;
    }
    Packet packet = std::move(m_packets.front());
    m_packets.pop_front();
    m_bytes -= packet.bytes.size();
    return packet;
}

void DecodeQueue::finish(uint64_t counter, std::shared_ptr<DecodedFrame> picture) {
    const std::lock_guard lock(m_mutex);
    if (m_closed) {
        return;
    }
    if (picture) {
        m_results.overtaken += m_results.picture ? 1 : 0;
        m_results.picture.swap(picture); // an older one is freed without the lock
    } else {
        ++m_results.failures;
        m_results.lastFailure = counter;
    }
    // With the lock, so that nobody is woken who has closed the queue and gone.
    if (!std::exchange(m_hasResults, true)) {
        m_wake();
    }
}

} // namespace corvane
