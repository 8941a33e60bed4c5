#pragma once

namespace corvane {

/// What streaming a shared screen aims at. The settings store keeps the number; any other number
/// there means `Speed`.
enum class DisplayMode : int { Quality = 0, Speed = 1, Smooth = 2 };

/// Frame rates and quality of a display mode.
struct StreamPreset {
    int framesPerSecond;
    int encoderQuality;           ///< the encoder's constant-quality level, lower is better
    int framesPerSecondWithInput; ///< while the viewer types or moves the pointer
};

inline constexpr StreamPreset kQualityPreset{
    .framesPerSecond = 24, .encoderQuality = 23, .framesPerSecondWithInput = 30};
inline constexpr StreamPreset kSpeedPreset{
    .framesPerSecond = 10, .encoderQuality = 45, .framesPerSecondWithInput = 30};
inline constexpr StreamPreset kSmoothPreset{
    .framesPerSecond = 30, .encoderQuality = 45, .framesPerSecondWithInput = 60};

/// The encoder's speed setting, a number in text form; the same in every mode.
inline constexpr char kEncoderSpeed[] = "8";

constexpr const StreamPreset& presetOf(DisplayMode mode) {
    switch (mode) {
    case DisplayMode::Quality:
        return kQualityPreset;
    case DisplayMode::Smooth:
        return kSmoothPreset;
    case DisplayMode::Speed:
        break;
    }
    return kSpeedPreset;
}

} // namespace corvane
