#include "session/ViewerStream.h"

#include "common/MonotonicClock.h"
#include "media/AV1Decoder.h"
#include "media/AV1Packet.h"

namespace corvane {

ViewerStream::ViewerStream(QObject* parent)
    : QObject(parent), m_decoder(std::make_unique<AV1Decoder>()) {
    connect(&m_recovery, &PictureRecovery::keyframeNeeded, this, &ViewerStream::keyframeNeeded);
    m_recovery.start();
}

ViewerStream::~ViewerStream() = default;

std::shared_ptr<DecodedFrame> ViewerStream::decode(uint64_t counter, ByteSpan packet) {
    if (!m_decoder->isInitialized() && !m_decoder->initialize(0, 0)) {
        return nullptr;
    }
    m_meter.count(packet.size());
    // Packets after an overtaken one were decoded without it, so it is of no use any more.
    std::shared_ptr<DecodedFrame> frame;
    if (counter >= m_nextCounter) {
        m_nextCounter = counter + 1;
        frame = m_decoder->decode(packet.data(), packet.size(), monotonicMilliseconds());
    }
    if (frame) {
        m_recovery.onPicture(counter, isKeyframePacket(packet));
    } else {
        m_recovery.onDecodeFailure();
    }
    return frame;
}

void ViewerStream::stop() {
    m_recovery.stop();
    if (m_decoder->isInitialized()) {
        m_decoder->shutdown();
    }
}

} // namespace corvane
