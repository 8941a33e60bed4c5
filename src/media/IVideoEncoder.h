#pragma once

#include "common/ByteVector.h"
#include "common/DisplayMode.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace corvane {

/// The profile for working on a screen: frames within milliseconds, text stays sharp, quality can
/// be changed from frame to frame.
inline constexpr char kInteractiveProfile[] = "interactive";

struct EncoderConfig {
    int32_t width = 1920;
    int32_t height = 1080;
    int32_t fps = kSpeedPreset.framesPerSecond;    ///< frames per second; the time base is 1 / fps
    int32_t bitrateKbps = 500;                     ///< kbit/s
    int32_t keyframeInterval = 60;                 ///< max distance between key frames, in frames
    int32_t cqLevel = kSpeedPreset.encoderQuality; ///< constant-quality level, 0 (best) to 63
    std::string speedPreset = kEncoderSpeed;       ///< a number or a preset name
    std::string profile; ///< `kInteractiveProfile`; anything else is the default set-up
};

inline bool isInteractive(const EncoderConfig& config) {
    return config.profile == kInteractiveProfile;
}

struct EncodedPacket {
    ByteVector data;
    uint64_t timestamp = 0; ///< as given to `encode`
    bool isKeyframe = false;
    int64_t pts = 0; ///< frame counter of the encoder
    int64_t dts = 0;
};

/// Compresses NV12 frames. Not thread-safe: one thread at a time.
class IVideoEncoder {
public:
    virtual ~IVideoEncoder() = default;

    /// Reopens the encoder; false leaves it closed.
    virtual bool initialize(const EncoderConfig& config) = 0;

    virtual void shutdown() = 0;

    /// `nv12` holds a full-range luma plane of `width * height` bytes, followed by `height / 2`
    /// rows of `width` interleaved Cb, Cr bytes. Null when no packet came out.
    virtual std::unique_ptr<EncodedPacket> encode(const uint8_t* nv12, int width, int height,
                                                  uint64_t timestamp, bool forceKeyframe) = 0;

    virtual bool isInitialized() const = 0;
    virtual void updateBitrate(int kbps) = 0;

    /// Width and height, in pixels, passed to the last `initialize`.
    virtual std::pair<int32_t, int32_t> configuredSize() const = 0;

    /// The constant-quality level, 0 (best) to 63, from the next frame on. Only the interactive
    /// profile can change it; any other keeps the level it was opened with.
    virtual void setQuality(int cqLevel) = 0;
};

} // namespace corvane
