#pragma once

#include "media/IVideoEncoder.h"

#include <string>

struct aom_codec_ctx;
struct aom_codec_enc_cfg;

namespace corvane {

/// How libaom is set up for a configuration. The default set-up spends time to save bytes; the
/// interactive profile does the opposite, at no less quality for the same level.
class AV1Tuning {
public:
    /// `config` is borrowed and must outlive the object.
    explicit AV1Tuning(const EncoderConfig& config) : m_config(config) {}

    /// What the library's default settings are asked for.
    unsigned usage() const;

    /// The level of the configuration, limited to what the library takes.
    int cqLevel() const;

    /// The library's speed, 0 (slow) to 10.
    int speed() const;

    /// Settings shared by the first configuration and every change of the rate.
    void applyRateControl(aom_codec_enc_cfg& settings) const;
    void applyStream(aom_codec_enc_cfg& settings) const;

    /// For a context just opened. The library ignores what it does not know.
    void applyControls(aom_codec_ctx& context) const;

    /// Interactive profile only: the quality from the next frame on. A finer level than the
    /// configured one also makes the library look harder.
    void applyQuality(aom_codec_ctx& context, int cqLevel) const;

    /// The library's speed for a preset: a number from 0 to 13, or a name.
    static int speedOf(const std::string& preset);

private:
    void applyInteractiveControls(aom_codec_ctx& context) const;

    const EncoderConfig& m_config;
};

} // namespace corvane
