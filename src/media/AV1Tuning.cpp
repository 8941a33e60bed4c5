#include "media/AV1Tuning.h"

#include <aom/aom_encoder.h>
#include <aom/aomcx.h>

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace corvane {

namespace {

constexpr int kMaxSpeed = 10;
constexpr int kDefaultSpeed = 8;
constexpr int kMaxCqLevel = 63;
constexpr int kTileColumnsLog2 = 2;
constexpr int kTileRowsLog2 = 1;

// Measured on screens of text: a frame of changes takes 4 ms at 720 lines, and a key frame a sixth
// of the time of the default set-up. The slower speed makes twice as much of finer levels.
constexpr int kInteractiveSpeed = 9;
constexpr int kRefiningSpeed = 8;

// Two threads take 40 % off a key frame; frames of changes are too small to share among many.
constexpr unsigned kMaxThreads = 4;

// The costs of modes and vectors are not counted anew within a frame.
constexpr unsigned kNoCostUpdates = 3;

struct NamedSpeed {
    std::string_view name;
    int speed;
};

constexpr std::array kNamedSpeeds = {
    NamedSpeed{"ultrafast", 10}, NamedSpeed{"superfast", 10}, NamedSpeed{"veryfast", 9},
    NamedSpeed{"faster", 9},     NamedSpeed{"fast", 8},       NamedSpeed{"medium", 6},
    NamedSpeed{"slow", 4},       NamedSpeed{"veryslow", 1},
};

unsigned interactiveThreads() {
    return std::clamp(std::thread::hardware_concurrency(), 1U, kMaxThreads);
}

/// Realtime coding looks worse at the same level, by about this much: 30 instead of 45 gives at
/// least the default set-up's picture, and so does 15 instead of 23.
unsigned interactiveLevel(int cqLevel) {
    return static_cast<unsigned>(std::clamp(cqLevel, 0, kMaxCqLevel) * 2 / 3);
}

} // namespace

unsigned AV1Tuning::usage() const {
    return isInteractive(m_config) ? AOM_USAGE_REALTIME : AOM_USAGE_GOOD_QUALITY;
}

int AV1Tuning::cqLevel() const {
    return std::clamp(m_config.cqLevel, 0, kMaxCqLevel);
}

int AV1Tuning::speed() const {
    return isInteractive(m_config) ? kInteractiveSpeed : speedOf(m_config.speedPreset);
}

void AV1Tuning::applyRateControl(aom_codec_enc_cfg& settings) const {
    const bool interactive = isInteractive(m_config);
    settings.g_threads = interactive ? interactiveThreads() : 0;
    settings.g_w = static_cast<unsigned>(m_config.width);
    settings.g_h = static_cast<unsigned>(m_config.height);
    settings.g_lag_in_frames = 0;
    settings.rc_end_usage = interactive ? AOM_Q : AOM_CQ;
    settings.rc_target_bitrate = static_cast<unsigned>(m_config.bitrateKbps);
}

void AV1Tuning::applyStream(aom_codec_enc_cfg& settings) const {
    settings.g_timebase = {1, m_config.fps};
    settings.g_error_resilient = 1;
    settings.g_pass = AOM_RC_ONE_PASS;
    settings.kf_min_dist = 0;
    settings.kf_max_dist = static_cast<unsigned>(m_config.keyframeInterval);
}

void AV1Tuning::applyControls(aom_codec_ctx& context) const {
    if (isInteractive(m_config)) {
        applyInteractiveControls(context);
        return;
    }
    aom_codec_control(&context, AOME_SET_CPUUSED, speed());
    aom_codec_control(&context, AOME_SET_CQ_LEVEL, static_cast<unsigned>(cqLevel()));
    aom_codec_control(&context, AV1E_SET_ROW_MT, 1U);
    aom_codec_control(&context, AV1E_SET_TILE_COLUMNS, kTileColumnsLog2);
    aom_codec_control(&context, AV1E_SET_TILE_ROWS, kTileRowsLog2);
}

void AV1Tuning::applyInteractiveControls(aom_codec_ctx& context) const {
    const unsigned threads = interactiveThreads();
    applyQuality(context, m_config.cqLevel);
    aom_codec_control(&context, AV1E_SET_ROW_MT, 1U);
    aom_codec_control(&context, AV1E_SET_TILE_COLUMNS, threads > 2 ? 2 : threads > 1 ? 1 : 0);
    aom_codec_control(&context, AV1E_SET_TUNE_CONTENT, AOM_CONTENT_SCREEN);
    // Directions between the main ones and predictions made for photographs: on text they save
    // nothing and cost 40 % of a key frame's time.
    aom_codec_control(&context, AV1E_SET_ENABLE_ANGLE_DELTA, 0);
    aom_codec_control(&context, AV1E_SET_ENABLE_CFL_INTRA, 0);
    aom_codec_control(&context, AV1E_SET_ENABLE_FILTER_INTRA, 0);
    aom_codec_control(&context, AV1E_SET_CDF_UPDATE_MODE, 1);
    aom_codec_control(&context, AV1E_SET_ENABLE_ORDER_HINT, 0);
    aom_codec_control(&context, AV1E_SET_COEFF_COST_UPD_FREQ, kNoCostUpdates);
    aom_codec_control(&context, AV1E_SET_MODE_COST_UPD_FREQ, kNoCostUpdates);
    aom_codec_control(&context, AV1E_SET_MV_COST_UPD_FREQ, kNoCostUpdates);
}

void AV1Tuning::applyQuality(aom_codec_ctx& context, int cqLevel) const {
    const bool refines = cqLevel < m_config.cqLevel;
    aom_codec_control(&context, AOME_SET_CPUUSED, refines ? kRefiningSpeed : kInteractiveSpeed);
    aom_codec_control(&context, AOME_SET_CQ_LEVEL, interactiveLevel(cqLevel));
}

int AV1Tuning::speedOf(const std::string& preset) {
    try {
        const int64_t number = std::stoi(preset);
        return static_cast<int>(std::clamp<int64_t>(number * 10 / 13, 0, kMaxSpeed));
    } catch (const std::logic_error&) {
        const auto named =
            std::find_if(kNamedSpeeds.begin(), kNamedSpeeds.end(),
                         [&preset](const NamedSpeed& entry) { return entry.name == preset; });
        return named == kNamedSpeeds.end() ? kDefaultSpeed : named->speed;
    }
}

} // namespace corvane
