#pragma once

namespace corvane {

/// What a shared screen is streamed for. The settings store keeps the number; any other one there
/// means `Speed`.
enum class DisplayMode : int { Quality = 0, Speed = 1 };

/// How a display mode streams.
struct StreamPreset {
    int framesPerSecond;
    int encoderQuality; ///< the encoder's constant-quality level, lower is better
};

inline constexpr StreamPreset kQualityPreset{.framesPerSecond = 24, .encoderQuality = 23};
inline constexpr StreamPreset kSpeedPreset{.framesPerSecond = 10, .encoderQuality = 45};

/// The encoder's speed, as it reads it; the same in every mode.
inline constexpr char kEncoderSpeed[] = "8";

constexpr const StreamPreset& presetOf(DisplayMode mode) {
    return mode == DisplayMode::Quality ? kQualityPreset : kSpeedPreset;
}

} // namespace corvane
