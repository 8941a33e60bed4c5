#include "AV1Decoder.h"
#include "AV1Encoder.h"
#include "DesktopScene.h"
#include "FrameConverter.h"

#include <aom/aom_encoder.h>
#include <aom/aomcx.h>
#include <benchmark/benchmark.h>
#include <dav1d/dav1d.h>
#include <spdlog/spdlog.h>

#include <chrono>
#include <cstring>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace corvane {
namespace {

/// Frames per pass: one key frame and deltas with movement, scrolling and little else.
constexpr int kFrames = 8;

struct Clip {
    int width;
    int height;
    std::vector<ByteVector> nv12;
    std::vector<ByteVector> packets;
};

EncoderConfig configOf(const Clip& clip) {
    EncoderConfig config;
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

/// Frames per second by the wall clock: the libraries also work on threads of their own, whose time
/// the framework's own rates leave out.
class FrameRate {
public:
    /// To be called right after the loop.
    void report(benchmark::State& state) const {
        const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - m_begin;
        state.counters["frames/s"] =
            static_cast<double>(state.iterations() * kFrames) / elapsed.count();
    }

private:
    const std::chrono::steady_clock::time_point m_begin = std::chrono::steady_clock::now();
};

void ConvertNv12(benchmark::State& state) {
    const auto height = static_cast<int>(state.range(0));
    const int width = height * 16 / 9;
    const ByteVector bgra = test::desktopScene(width, height, 0);
    ByteVector nv12 = allocateNV12(width, height);
    const FrameConverter converter;
    for ([[maybe_unused]] auto _ : state) {
        converter.convert(bgra.data(), width, height, width * 4, nv12.data(), 0);
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bgra.size()));
}

void ConvertMemcpy(benchmark::State& state) {
    const auto height = static_cast<int>(state.range(0));
    const ByteVector bgra = test::desktopScene(height * 16 / 9, height, 0);
    ByteVector copy(bgra.size());
    for ([[maybe_unused]] auto _ : state) {
        std::memcpy(copy.data(), bgra.data(), bgra.size());
        benchmark::ClobberMemory();
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(bgra.size()));
}

void Encode(benchmark::State& state) {
    const Clip& clip = clipOf(state);
    const FrameRate rate;
    for ([[maybe_unused]] auto _ : state) {
        AV1Encoder encoder;
        encoder.initialize(configOf(clip));
        for (const ByteVector& frame : clip.nv12) {
            benchmark::DoNotOptimize(
                encoder.encode(frame.data(), clip.width, clip.height, 0, false));
        }
    }
    rate.report(state);
}

/// Planar pictures, as the library takes them, ready before the clock runs.
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

void openBareEncoder(aom_codec_ctx_t& context, const EncoderConfig& config) {
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
    aom_codec_control(&context, AOME_SET_CPUUSED, AV1Encoder::speedOf(config.speedPreset));
    aom_codec_control(&context, AOME_SET_CQ_LEVEL, static_cast<unsigned>(config.cqLevel));
    aom_codec_control(&context, AV1E_SET_ROW_MT, 1U);
    aom_codec_control(&context, AV1E_SET_TILE_COLUMNS, 2);
    aom_codec_control(&context, AV1E_SET_TILE_ROWS, 1);
}

void EncodeBareAom(benchmark::State& state) {
    const Clip& clip = clipOf(state);
    const auto images = planarImages(clip);
    const FrameRate rate;
    for ([[maybe_unused]] auto _ : state) {
        aom_codec_ctx_t context{};
        openBareEncoder(context, configOf(clip));
        for (size_t i = 0; i < images.size(); ++i) {
            aom_codec_encode(&context, images[i], static_cast<aom_codec_pts_t>(i), 1, 0);
            aom_codec_iter_t position = nullptr;
            while (const auto* const packet = aom_codec_get_cx_data(&context, &position)) {
                benchmark::DoNotOptimize(packet->data.frame.sz);
            }
        }
        aom_codec_destroy(&context);
    }
    rate.report(state);
    for (aom_image_t* const image : images) {
        aom_img_free(image);
    }
}

void Decode(benchmark::State& state) {
    const Clip& clip = clipOf(state);
    AV1Decoder decoder;
    decoder.initialize(clip.width, clip.height);
    const FrameRate rate;
    for ([[maybe_unused]] auto _ : state) {
        for (const ByteVector& packet : clip.packets) {
            const auto frame = decoder.decode(packet.data(), packet.size(), 0);
            if (!frame) {
                state.SkipWithError("no picture");
                return;
            }
            benchmark::DoNotOptimize(frame->yPlane.data());
        }
    }
    rate.report(state);
}

void DecodeBareDav1d(benchmark::State& state) {
    const Clip& clip = clipOf(state);
    Dav1dSettings settings;
    dav1d_default_settings(&settings);
    settings.n_threads = 0;
    settings.max_frame_delay = 1;
    Dav1dContext* context = nullptr;
    dav1d_open(&context, &settings);
    const FrameRate rate;
    for ([[maybe_unused]] auto _ : state) {
        for (const ByteVector& packet : clip.packets) {
            Dav1dData data{};
            std::memcpy(dav1d_data_create(&data, packet.size()), packet.data(), packet.size());
            dav1d_send_data(context, &data);
            Dav1dPicture picture{};
            if (dav1d_get_picture(context, &picture) != 0) {
                state.SkipWithError("no picture");
                break;
            }
            benchmark::DoNotOptimize(picture.data[0]);
            dav1d_picture_unref(&picture);
        }
    }
    rate.report(state);
    dav1d_close(&context);
}

BENCHMARK(ConvertNv12)->Arg(1080);
BENCHMARK(ConvertMemcpy)->Arg(1080);
BENCHMARK(Encode)->Arg(720)->Arg(1080);
BENCHMARK(EncodeBareAom)->Arg(720)->Arg(1080);
BENCHMARK(Decode)->Arg(720)->Arg(1080);
BENCHMARK(DecodeBareDav1d)->Arg(720)->Arg(1080);

} // namespace
} // namespace corvane

int main(int argc, char** argv) {
    spdlog::set_level(spdlog::level::err);
    // Repetitions of ours and of the bare libraries are shuffled, so that a slow moment of the
    // machine hits both. Arguments given by the user come later and win.
    std::vector<char*> arguments(argv, argv + argc);
    std::string defaults[] = {
        "--benchmark_repetitions=5", "--benchmark_enable_random_interleaving=true",
        "--benchmark_report_aggregates_only=true", "--benchmark_min_time=0.3"};
    for (std::string& argument : defaults) {
        arguments.insert(arguments.begin() + 1, argument.data());
    }
    int count = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
