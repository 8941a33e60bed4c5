#pragma once

#include "media/CapturedFrame.h"
#include "media/FrameConverter.h"
#include "media/IVideoEncoder.h"
#include "session/StreamingSettings.h"

#include <atomic>
#include <memory>
#include <optional>

namespace corvane {

class AesGcmCipher;

/// Turns a screen image into one sealed video message: converts, encodes and seals it. Adapts to
/// the size of the frames it is given. Used by one thread at a time.
class FramePipeline {
public:
    /// `cipher` is borrowed and must outlive the pipeline.
    FramePipeline(StreamingSettings settings, AesGcmCipher& cipher,
                  std::unique_ptr<IVideoEncoder> encoder);

    /// The sealed packet; no value when the frame is unusable, the encoder held it back or a step
    /// failed (logged). When a key frame is requested and the last packet was a key frame of the
    /// same picture, that packet is sealed again: nothing is quicker to send after a loss.
    std::optional<ByteVector> process(const CapturedFrame& frame);

    /// See `streamLevel`. Any thread; counts from the next frame on.
    void setLevel(int level) { m_level = level; }

    /// Closes the encoder; the next frame opens it again.
    void shutdown();

private:
    bool prepareEncoder(int width, int height);
    bool encode(const CapturedFrame& frame, int width, int height, ByteVector nv12);
    int qualityOf(const CapturedFrame& frame) const;

    StreamingSettings m_settings;
    AesGcmCipher& m_cipher;
    FrameConverter m_converter;
    std::unique_ptr<IVideoEncoder> m_encoder;
    std::atomic<int> m_level = 0;
    ByteVector m_half;               ///< the frame at half its size
    ByteVector m_picture;            ///< the last one encoded
    ByteVector m_packet;             ///< its packet
    bool m_packetIsKeyframe = false; ///< a key frame that the encoder builds on
};

} // namespace corvane
