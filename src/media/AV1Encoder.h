#pragma once

#include "media/IVideoEncoder.h"

namespace corvane {

/// libaom in constant-quality mode without look-ahead: every frame yields its packet at once.
/// `AV1Tuning` says how it is set up.
class AV1Encoder : public IVideoEncoder {
public:
    AV1Encoder();
    ~AV1Encoder() override;
    AV1Encoder(const AV1Encoder&) = delete;
    AV1Encoder& operator=(const AV1Encoder&) = delete;

    bool initialize(const EncoderConfig& config) override;
    void shutdown() override;

    /// A frame whose size differs from the configured one is refused; nothing is ever rescaled.
    std::unique_ptr<EncodedPacket> encode(const uint8_t* nv12, int width, int height,
                                          uint64_t timestamp, bool forceKeyframe) override;

    bool isInitialized() const override { return m_initialized; }

    /// Sets the target rate in kbit/s. The library's defaults for time base, key-frame distance and
    /// error resilience apply from here on.
    void updateBitrate(int kbps) override;

    std::pair<int32_t, int32_t> configuredSize() const override {
        return {m_config.width, m_config.height};
    }

    void setQuality(int cqLevel) override;

private:
    struct Codec;

    void fillImage(const uint8_t* nv12);
    std::unique_ptr<EncodedPacket> takePacket(uint64_t timestamp);

    std::unique_ptr<Codec> m_codec;
    EncoderConfig m_config;
    int64_t m_frameCounter = 0;
    bool m_initialized = false;
};

} // namespace corvane
