#include "SideBySide.h"
#include "media/AV1Decoder.h"
#include "media/AV1Encoder.h"
#include "media/AV1Tuning.h"
#include "media/FrameConverter.h"
#include "support/DesktopScene.h"

#include <aom/aom_encoder.h>
#include <aom/aomcx.h>
#include <benchmark/benchmark.h>
#include <dav1d/dav1d.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <stdexcept>
#include <thread>
#include <vector>

namespace corvane {
namespace {

/// Frames per pass: one key frame, then deltas with movement, with scrolling and with few changes.
constexpr int kFrames = 8;

struct Clip {
    int width;
    int height;
    std::vector<ByteVector> nv12;
    std::vector<ByteVector> packets;
};

EncoderConfig configOf(const Clip& clip, const char* profile = "") {
    EncoderConfig config;
    config.profile = profile;
    config.width = clip.width;
    config.height = clip.height;
    return config;
}

Clip makeClip(int height) {
    Clip clip{height * 16 / 9, height, {}, {}};
    AV1Encoder encoder;
    if (!encoder.initialize(configOf(clip))) {
        throw std::runtime_error("the encoder does not open");
    }
    for (int step = 0; step < kFrames; ++step) {
        const ByteVector bgra = test::desktopScene(clip.width, clip.height, step);
        ByteVector nv12 = allocateNV12(clip.width, clip.height);
        FrameConverter().convert(bgra.data(), clip.width, clip.height, clip.width * 4, nv12.data(),
                                 nv12.size());
        clip.packets.push_back(
            encoder.encode(nv12.data(), clip.width, clip.height, 0, false)->data);
        clip.nv12.push_back(std::move(nv12));
    }
    return clip;
}

const Clip& clipOf(const benchmark::State& state) {
    static std::map<int64_t, Clip> clips;
    const int64_t height = state.range(0);
    const auto known = clips.find(height);
    return known != clips.end()
               ? known->second
               : clips.emplace(height, makeClip(static_cast<int>(height))).first->second;
}

void convert(benchmark::State& state) {
    const auto height = static_cast<int>(state.range(0));
    const int width = height * 16 / 9;
    const ByteVector bgra = test::desktopScene(width, height, 0);
    ByteVector nv12 = allocateNV12(width, height);
    ByteVector copy(bgra.size());
    const FrameConverter converter;
    const auto ours = [&] {
        converter.convert(bgra.data(), width, height, width * 4, nv12.data(), 0);
        benchmark::ClobberMemory();
    };
    const auto limit = [&] {
        std::memcpy(copy.data(), bgra.data(), bgra.size());
        benchmark::ClobberMemory();
    };
    sideBySide(state, 1, ours, limit);
}

/// Planar pictures, as the library takes them, prepared before timing starts.
std::vector<aom_image_t*> planarImages(const Clip& clip) {
    std::vector<aom_image_t*> images;
    const auto width = static_cast<size_t>(clip.width);
    const auto height = static_cast<size_t>(clip.height);
    for (const ByteVector& nv12 : clip.nv12) {
        aom_image_t* const image =
            aom_img_alloc(nullptr, AOM_IMG_FMT_I420, static_cast<unsigned>(clip.width),
                          static_cast<unsigned>(clip.height), 16);
        for (size_t row = 0; row < height; ++row) {
            std::memcpy(image->planes[0] + row * static_cast<size_t>(image->stride[0]),
                        nv12.data() + row * width, width);
        }
        for (size_t row = 0; row < height / 2; ++row) {
            const uint8_t* const chroma = nv12.data() + (height + row) * width;
            for (size_t i = 0; i < width / 2; ++i) {
                for (const size_t plane : {size_t{1}, size_t{2}}) {
                    image->planes[plane][row * static_cast<size_t>(image->stride[plane]) + i] =
                        chroma[2 * i + plane - 1];
                }
            }
        }
        images.push_back(image);
    }
    return images;
}

void openBareInteractiveEncoder(aom_codec_ctx_t& context, const EncoderConfig& config) {
    aom_codec_enc_cfg_t settings{};
    aom_codec_enc_config_default(aom_codec_av1_cx(), &settings, AOM_USAGE_REALTIME);
    settings.g_threads = std::clamp(std::thread::hardware_concurrency(), 1U, 4U);
    settings.g_w = static_cast<unsigned>(config.width);
    settings.g_h = static_cast<unsigned>(config.height);
    settings.g_timebase = {1, config.fps};
    settings.g_error_resilient = 1;
    settings.g_lag_in_frames = 0;
    settings.rc_end_usage = AOM_Q;
    settings.kf_max_dist = static_cast<unsigned>(config.keyframeInterval);
    aom_codec_enc_init(&context, aom_codec_av1_cx(), &settings, 0);
    aom_codec_control(&context, AOME_SET_CPUUSED, 9);
    aom_codec_control(&context, AOME_SET_CQ_LEVEL, 35U);
    aom_codec_control(&context, AV1E_SET_ROW_MT, 1U);
    aom_codec_control(&context, AV1E_SET_TUNE_CONTENT, AOM_CONTENT_SCREEN);
}

void openBareEncoder(aom_codec_ctx_t& context, const EncoderConfig& config) {
    if (isInteractive(config)) {
        openBareInteractiveEncoder(context, config);
        return;
    }
    aom_codec_enc_cfg_t settings{};
    aom_codec_enc_config_default(aom_codec_av1_cx(), &settings, 0);
    settings.g_threads = 0;
    settings.g_w = static_cast<unsigned>(config.width);
    settings.g_h = static_cast<unsigned>(config.height);
    settings.g_timebase = {1, config.fps};
    settings.g_error_resilient = 1;
    settings.g_pass = AOM_RC_ONE_PASS;
    settings.g_lag_in_frames = 0;
    settings.rc_end_usage = AOM_CQ;
    settings.rc_target_bitrate = static_cast<unsigned>(config.bitrateKbps);
    settings.kf_min_dist = 0;
    settings.kf_max_dist = static_cast<unsigned>(config.keyframeInterval);
    aom_codec_enc_init(&context, aom_codec_av1_cx(), &settings, 0);
    aom_codec_control(&context, AOME_SET_CPUUSED, AV1Tuning::speedOf(config.speedPreset));
    aom_codec_control(&context, AOME_SET_CQ_LEVEL, static_cast<unsigned>(config.cqLevel));
    aom_codec_control(&context, AV1E_SET_ROW_MT, 1U);
    aom_codec_control(&context, AV1E_SET_TILE_COLUMNS, 2);
    aom_codec_control(&context, AV1E_SET_TILE_ROWS, 1);
}

void encodeBare(const Clip& clip, const char* profile, const std::vector<aom_image_t*>& images) {
    aom_codec_ctx_t context{};
    openBareEncoder(context, configOf(clip, profile));
    for (size_t i = 0; i < images.size(); ++i) {
        aom_codec_encode(&context, images[i], static_cast<aom_codec_pts_t>(i), 1, 0);
        aom_codec_iter_t position = nullptr;
        while (const auto* const packet = aom_codec_get_cx_data(&context, &position)) {
            size_t bytes = packet->data.frame.sz;
            benchmark::DoNotOptimize(bytes);
        }
    }
    aom_codec_destroy(&context);
}

void encode(benchmark::State& state, const char* profile) {
    const Clip& clip = clipOf(state);
    const auto images = planarImages(clip);
    const auto ours = [&] {
        AV1Encoder encoder;
        encoder.initialize(configOf(clip, profile));
        for (const ByteVector& frame : clip.nv12) {
            benchmark::DoNotOptimize(
                encoder.encode(frame.data(), clip.width, clip.height, 0, false));
        }
    };
    sideBySide(state, kFrames, ours, [&] { encodeBare(clip, profile, images); });
    for (aom_image_t* const image : images) {
        aom_img_free(image);
    }
}

Dav1dContext* openBareDecoder() {
    Dav1dSettings settings;
    dav1d_default_settings(&settings);
    settings.n_threads = 0;
    settings.max_frame_delay = 1;
    Dav1dContext* context = nullptr;
    dav1d_open(&context, &settings);
    return context;
}

bool decodeBare(Dav1dContext* context, const ByteVector& packet) {
    Dav1dData data{};
    std::memcpy(dav1d_data_create(&data, packet.size()), packet.data(), packet.size());
    dav1d_send_data(context, &data);
    Dav1dPicture picture{};
    if (dav1d_get_picture(context, &picture) != 0) {
        return false;
    }
    benchmark::DoNotOptimize(picture.data[0]);
    dav1d_picture_unref(&picture);
    return true;
}

void decode(benchmark::State& state) {
    const Clip& clip = clipOf(state);
    AV1Decoder decoder;
    decoder.initialize(clip.width, clip.height);
    Dav1dContext* bare = openBareDecoder();
    bool complete = true;
    const auto ours = [&] {
        for (const ByteVector& packet : clip.packets) {
            const auto frame = decoder.decode(packet.data(), packet.size(), 0);
            complete = complete && frame != nullptr;
            benchmark::DoNotOptimize(frame.get());
        }
    };
    const auto limit = [&] {
        for (const ByteVector& packet : clip.packets) {
            complete = decodeBare(bare, packet) && complete;
        }
    };
    sideBySide(state, kFrames, ours, limit);
    dav1d_close(&bare);
    if (!complete) {
        state.SkipWithError("no picture");
    }
}

BENCHMARK(convert)->Name("Convert")->Arg(1080)->UseManualTime()->Iterations(500);
BENCHMARK_CAPTURE(encode, Default, "")
    ->Name("Encode")
    ->Arg(720)
    ->Arg(1080)
    ->UseManualTime()
    ->Iterations(5);
BENCHMARK_CAPTURE(encode, Interactive, kInteractiveProfile)
    ->Name("EncodeInteractive")
    ->Arg(720)
    ->Arg(1080)
    ->UseManualTime()
    ->Iterations(15);
BENCHMARK(decode)->Name("Decode")->Arg(720)->Arg(1080)->UseManualTime()->Iterations(200);

} // namespace
} // namespace corvane
