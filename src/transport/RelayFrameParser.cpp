#include "transport/RelayFrameParser.h"

#include <QtEndian>

#include <algorithm>

namespace corvane {

RelayFrameParser::Result RelayFrameParser::consume(ByteSpan& input) {
    if (m_headerFilled < m_header.size()) {
        if (!readHeader(input)) {
            return Result::NeedMoreData;
        }
        const bool validChannel = channelByte() <= static_cast<uint8_t>(ChannelType::Video);
        if (!validChannel || payloadSize() > kRelayMaxPayload) {
            reset();
            input = {};
            return validChannel ? Result::PayloadTooLarge : Result::InvalidChannel;
        }
        m_payload = QByteArray();
        m_payload.reserve(static_cast<qsizetype>(payloadSize()));
    }
    if (!readPayload(input)) {
        return Result::NeedMoreData;
    }
    m_headerFilled = 0;
    return Result::FrameReady;
}

uint32_t RelayFrameParser::payloadSize() const {
    return qFromBigEndian<uint32_t>(&m_header[1]);
}

void RelayFrameParser::reset() {
    m_headerFilled = 0;
    m_payload = QByteArray();
}

bool RelayFrameParser::readHeader(ByteSpan& input) {
    const size_t count = std::min(m_header.size() - m_headerFilled, input.size());
    std::copy_n(input.begin(), count, m_header.begin() + static_cast<ptrdiff_t>(m_headerFilled));
    m_headerFilled += count;
    input = input.subspan(count);
    return m_headerFilled == m_header.size();
}

bool RelayFrameParser::readPayload(ByteSpan& input) {
    const size_t missing = payloadSize() - static_cast<size_t>(m_payload.size());
    const size_t count = std::min(missing, input.size());
    m_payload.append(reinterpret_cast<const char*>(input.data()), static_cast<qsizetype>(count));
    input = input.subspan(count);
    return count == missing;
}

} // namespace corvane
