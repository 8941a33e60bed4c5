#include "session/ViewerStream.h"

#include "media/AV1Decoder.h"
#include "media/AV1Packet.h"

#include <spdlog/spdlog.h>

#include <utility>

namespace corvane {

ViewerStream::ViewerStream(QObject* parent)
    : ViewerStream(std::make_unique<AV1Decoder>(), {}, DecodeThread::kDefaultEndLimit, parent) {}

ViewerStream::ViewerStream(std::unique_ptr<IVideoDecoder> decoder, DecodeQueue::Limits limits,
                           std::chrono::milliseconds endLimit, QObject* parent)
    : QObject(parent), m_queue(std::make_shared<DecodeQueue>(
                           limits, [this] { Q_EMIT resultsWaiting(QPrivateSignal()); })),
      m_thread(m_queue, std::move(decoder), endLimit) {
    connect(this, &ViewerStream::resultsWaiting, this, &ViewerStream::deliver,
            Qt::QueuedConnection);
    connect(&m_recovery, &PictureRecovery::keyframeNeeded, this, &ViewerStream::keyframeNeeded);
    m_recovery.start();
}

ViewerStream::~ViewerStream() = default;

void ViewerStream::receive(uint64_t counter, ByteVector packet) {
    if (m_stopped) {
        return;
    }
    m_meter.count(packet.size());
    const bool keyframe = isKeyframePacket(packet);
    // Packets after an overtaken one were decoded without it, so it is of no use any more.
    const bool inOrder = counter >= m_nextCounter;
    if (inOrder) {
        m_nextCounter = counter + 1;
    }
    if (inOrder && enqueue({counter, std::move(packet)}, keyframe)) {
        if (keyframe) {
            m_recovery.onKeyframe(counter);
        }
        return;
    }
    Q_EMIT packetDropped();
    m_recovery.onDecodeFailure(counter);
}

/// False when the packet is of no use, or there is no room for it.
bool ViewerStream::enqueue(DecodeQueue::Packet packet, bool keyframe) {
    if (m_awaitingKeyframe && !keyframe) {
        return false;
    }
    if (!m_queue->push(packet)) {
        emptyQueue();
        m_awaitingKeyframe = !keyframe;
        return keyframe && m_queue->push(packet);
    }
    m_awaitingKeyframe = false;
    return true;
}

/// Packets build on one another, so that dropping one makes those after it useless.
void ViewerStream::emptyQueue() {
    const size_t dropped = m_queue->clear();
    spdlog::warn("Video arrives faster than it can be decoded, {} packets dropped", dropped);
    for (size_t i = 0; i < dropped; ++i) {
        Q_EMIT packetDropped();
    }
}

void ViewerStream::deliver() {
    // Nothing once the queue is closed.
    const auto results = m_queue->takeResults();
    for (size_t i = 0; i < results.overtaken; ++i) {
        Q_EMIT pictureOvertaken();
    }
    for (size_t i = 0; i < results.failures; ++i) {
        Q_EMIT packetDropped();
    }
    if (results.failures > 0) {
        m_recovery.onDecodeFailure(results.lastFailure);
    }
    if (results.picture && !m_stopped) {
        Q_EMIT pictureDecoded(results.picture);
    }
}

void ViewerStream::stop() {
    m_stopped = true;
    m_recovery.stop();
    m_queue->close();
}

} // namespace corvane
