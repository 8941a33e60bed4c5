#pragma once

namespace corvane {

/// What streaming a shared screen aims at. The settings store keeps the number; any other number
/// there means `Speed`.
enum class DisplayMode : int { Quality = 0, Speed = 1 };

/// Frame rate and quality of a display mode.
struct StreamPreset {
    int framesPerSecond;
    int encoderQuality; ///< the encoder's constant-quality level, lower is better
};

inline constexpr StreamPreset kQualityPreset{.framesPerSecond = 24, .encoderQuality = 23};
inline constexpr StreamPreset kSpeedPreset{.framesPerSecond = 10, .encoderQuality = 45};

/// The encoder's speed setting, a number in text form; the same in every mode.
inline constexpr char kEncoderSpeed[] = "8";

constexpr const StreamPreset& presetOf(DisplayMode mode) {
    return mode == DisplayMode::Quality ? kQualityPreset : kSpeedPreset;
}

} // namespace corvane
