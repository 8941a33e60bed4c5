#pragma once

#include "media/CapturedFrame.h"
#include "media/FrameConverter.h"
#include "media/IVideoEncoder.h"
#include "session/StreamingSettings.h"

#include <memory>
#include <optional>

namespace corvane {

class AesGcmCipher;

/// Turns a screen image into one sealed video message: convert, encode, seal. Follows the size of
/// the frames it is given. Used by one thread at a time.
class FramePipeline {
public:
    /// `cipher` is borrowed and must outlive the pipeline.
    FramePipeline(StreamingSettings settings, AesGcmCipher& cipher,
                  std::unique_ptr<IVideoEncoder> encoder);

    /// The sealed packet; no value when the frame is unusable, the encoder held it back or a step
    /// failed (logged). Where a key frame is asked for and the last packet was one of the same
    /// picture, it is that packet again: nothing is quicker to send after one that was lost.
    std::optional<ByteVector> process(const CapturedFrame& frame);

    /// Closes the encoder; the next frame opens it again.
    void shutdown();

private:
    bool prepareEncoder(int width, int height);
    bool encode(const CapturedFrame& frame, ByteVector nv12);

    StreamingSettings m_settings;
    AesGcmCipher& m_cipher;
    FrameConverter m_converter;
    std::unique_ptr<IVideoEncoder> m_encoder;
    ByteVector m_picture;            ///< the last one encoded
    ByteVector m_packet;             ///< its packet
    bool m_packetIsKeyframe = false; ///< and the encoder builds on it
};

} // namespace corvane
