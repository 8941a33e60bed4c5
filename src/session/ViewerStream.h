#pragma once

#include "ByteVector.h"
#include "DecodedFrame.h"
#include "StreamMeter.h"

#include <memory>

namespace corvane {

class IVideoDecoder;

/// The viewing side of a running session: decodes the packets of the video channel. Main thread.
class ViewerStream {
public:
    ViewerStream();
    ~ViewerStream();

    /// The packet's picture, or null when none came out. Opens the decoder on first use.
    std::shared_ptr<DecodedFrame> decode(ByteSpan packet);

    void stop();

private:
    std::unique_ptr<IVideoDecoder> m_decoder;
    StreamMeter m_meter;
};

} // namespace corvane
