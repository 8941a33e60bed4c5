#pragma once

#include "common/ByteVector.h"
#include "transport/RelayFrame.h"

#include <QByteArray>

#include <array>
#include <cstddef>
#include <cstdint>

namespace corvane {

/// Cuts a relay's byte stream into frames, whatever pieces it arrives in.
///
/// Every byte is copied once, straight into the payload that it belongs to, so the cost is linear
/// in the bytes received and the memory held is at most one payload. No I/O, no signals.
class RelayFrameParser {
public:
    enum class Result {
        NeedMoreData,    ///< the input is used up
        FrameReady,      ///< `channel` and `takePayload` hold the next frame
        InvalidChannel,  ///< `channelByte` names the offender; the rest of the input is dropped
        PayloadTooLarge, ///< `payloadSize` names the offender; the rest of the input is dropped
    };

    /// Takes bytes off the front of `input` until one frame is complete or the input is used up.
    /// After a refused header the parser is ready for the start of a new frame.
    Result consume(ByteSpan& input);

    /// Of the header read last.
    uint8_t channelByte() const { return m_header[0]; }
    uint32_t payloadSize() const;

    ChannelType channel() const { return static_cast<ChannelType>(channelByte()); }
    QByteArray takePayload() { return std::move(m_payload); }

    /// Forgets a frame begun.
    void reset();

private:
    bool readHeader(ByteSpan& input);
    bool readPayload(ByteSpan& input);

    std::array<uint8_t, kRelayFrameHeaderSize> m_header = {};
    size_t m_headerFilled = 0;
    QByteArray m_payload;
};

} // namespace corvane
