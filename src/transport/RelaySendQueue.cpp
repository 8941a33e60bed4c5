#include "transport/RelaySendQueue.h"

#include <algorithm>
#include <utility>

namespace corvane {

void RelaySendQueue::push(Urgency urgency, QByteArray frame) {
    m_bytes += frame.size();
    if (urgency == Urgency::Video) {
        m_videoBytes += frame.size();
    }
    queueOf(urgency).push_back(std::move(frame));
}

std::optional<QByteArray> RelaySendQueue::pop() {
    for (auto& queue : m_queues) {
        if (queue.empty()) {
            continue;
        }
        QByteArray frame = std::move(queue.front());
        queue.pop_front();
        const bool video = &queue == &queueOf(Urgency::Video);
        m_bytes -= frame.size();
        m_videoBytes -= video ? frame.size() : 0;
        m_given.push_back({frame.size(), video});
        return frame;
    }
    return std::nullopt;
}

qint64 RelaySendQueue::videoBytes(qint64 unsent) {
    qint64 video = 0;
    auto given = m_given.rbegin();
    for (; given != m_given.rend() && unsent > 0; ++given) {
        video += given->video ? std::min(given->bytes, unsent) : 0;
        unsent -= given->bytes;
    }
    m_given.erase(m_given.begin(), given.base());
    return m_videoBytes + video;
}

void RelaySendQueue::clear() {
    *this = {};
}

} // namespace corvane
