#include "ViewerStream.h"

#include "AV1Decoder.h"
#include "MonotonicClock.h"

namespace corvane {

ViewerStream::ViewerStream() : m_decoder(std::make_unique<AV1Decoder>()) {}

ViewerStream::~ViewerStream() = default;

std::shared_ptr<DecodedFrame> ViewerStream::decode(ByteSpan packet) {
    if (!m_decoder->isInitialized() && !m_decoder->initialize(0, 0)) {
        return nullptr;
    }
    m_meter.count(packet.size());
    return m_decoder->decode(packet.data(), packet.size(), monotonicMilliseconds());
}

void ViewerStream::stop() {
    if (m_decoder->isInitialized()) {
        m_decoder->shutdown();
    }
}

} // namespace corvane
