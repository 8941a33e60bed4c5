#include "session/PacketQueue.h"

#include <utility>

namespace corvane {

void PacketQueue::setFlowing(bool flowing) {
    {
        const std::lock_guard lock(m_mutex);
        m_flowing = flowing;
    }
    m_changed.notify_all();
}

void PacketQueue::close() {
    {
        const std::lock_guard lock(m_mutex);
        m_closed = true;
        m_packets.clear();
    }
    m_changed.notify_all();
}

bool PacketQueue::waitForRoom(std::chrono::milliseconds timeout) {
    std::unique_lock lock(m_mutex);
    const bool decided = m_changed.wait_for(
        lock, timeout, [this] { return m_closed || (m_flowing && m_packets.empty()); });
    return decided && !m_closed;
}

bool PacketQueue::push(ByteVector packet) {
    const std::lock_guard lock(m_mutex);
    if (m_closed) {
        return false;
    }
    m_packets.push_back(std::move(packet));
    return m_packets.size() == 1;
}

std::optional<ByteVector> PacketQueue::pop() {
    std::optional<ByteVector> packet;
    {
        const std::lock_guard lock(m_mutex);
        if (m_packets.empty()) {
            return std::nullopt;
        }
        packet = std::move(m_packets.front());
        m_packets.pop_front();
    }
    m_changed.notify_all();
    return packet;
}

} // namespace corvane
