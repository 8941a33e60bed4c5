#pragma once

#include "common/ByteVector.h"
#include "transport/RelayFrame.h"

#include <QByteArray>

#include <array>
#include <cstddef>
#include <cstdint>

namespace corvane {

/// Splits a relay's byte stream into frames, however it is fragmented.
///
/// Every byte is copied once, straight into its payload, so the cost is linear in the bytes
/// received and at most one payload is held in memory. No I/O, no signals.
class RelayFrameParser {
public:
    enum class Result {
        NeedMoreData,    ///< the input is used up
        FrameReady,      ///< `channel` and `takePayload` hold the next frame
        InvalidChannel,  ///< see `channelByte`; the rest of the input is dropped
        PayloadTooLarge, ///< see `payloadSize`; the rest of the input is dropped
    };

    /// Consumes bytes from the front of `input` until a frame is complete or the input is used up.
    /// After refusing a header the parser expects the start of a new frame.
    Result consume(ByteSpan& input);

    /// From the header read last.
    uint8_t channelByte() const { return m_header[0]; }
    uint32_t payloadSize() const;

    ChannelType channel() const { return static_cast<ChannelType>(channelByte()); }
    QByteArray takePayload() { return std::move(m_payload); }

    /// Discards an incomplete frame.
    void reset();

private:
    bool readHeader(ByteSpan& input);
    bool readPayload(ByteSpan& input);

    std::array<uint8_t, kRelayFrameHeaderSize> m_header = {};
    size_t m_headerFilled = 0;
    QByteArray m_payload;
};

} // namespace corvane
