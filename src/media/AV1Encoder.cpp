#include "media/AV1Encoder.h"

#include "media/AV1Tuning.h"

#include <aom/aom_encoder.h>
#include <aom/aomcx.h>
#include <spdlog/spdlog.h>

#include <cstring>

namespace corvane {

namespace {

constexpr unsigned kImageAlignment = 16;
constexpr int kNeutralChroma = 128;

void splitChromaRow(const uint8_t* __restrict interleaved, size_t pairs, uint8_t* __restrict cb,
                    uint8_t* __restrict cr) {
    for (size_t i = 0; i < pairs; ++i) {
        cb[i] = interleaved[2 * i];
        cr[i] = interleaved[2 * i + 1];
    }
}

} // namespace

/// The library's context and input image, released with it.
struct AV1Encoder::Codec {
    aom_codec_ctx_t context{};
    aom_image_t image{};
    bool contextOpen = false;
    bool imageAllocated = false;

    Codec() = default;
    Codec(const Codec&) = delete;
    Codec& operator=(const Codec&) = delete;

    ~Codec() {
        if (imageAllocated) {
            aom_img_free(&image);
        }
        if (contextOpen) {
            aom_codec_destroy(&context);
        }
    }

    bool open(aom_codec_iface_t* library, const aom_codec_enc_cfg_t& settings) {
        contextOpen = aom_codec_enc_init(&context, library, &settings, 0) == AOM_CODEC_OK;
        return contextOpen;
    }

    bool allocateImage(unsigned width, unsigned height) {
        imageAllocated =
            aom_img_alloc(&image, AOM_IMG_FMT_I420, width, height, kImageAlignment) != nullptr;
        if (!imageAllocated) {
            return false;
        }
        // Frames of odd size never write the last chroma column and row: grey, not garbage.
        for (const int plane : {AOM_PLANE_U, AOM_PLANE_V}) {
            std::memset(image.planes[plane], kNeutralChroma,
                        static_cast<size_t>(image.stride[plane]) * ((height + 1) / 2));
        }
        return true;
    }
};

AV1Encoder::AV1Encoder() = default;
AV1Encoder::~AV1Encoder() = default;

bool AV1Encoder::initialize(const EncoderConfig& config) {
    shutdown();
    m_config = config;
    const AV1Tuning tuning(config);

    aom_codec_iface_t* const library = aom_codec_av1_cx();
    if (library == nullptr) {
        spdlog::error("AV1Encoder: aom_codec_av1_cx() returned null");
        return false;
    }
    aom_codec_enc_cfg_t settings{};
    const aom_codec_err_t result = aom_codec_enc_config_default(library, &settings, tuning.usage());
    if (result != AOM_CODEC_OK) {
        spdlog::error("AV1Encoder: aom_codec_enc_config_default failed: {}",
                      aom_codec_err_to_string(result));
        return false;
    }
    tuning.applyRateControl(settings);
    tuning.applyStream(settings);

    auto codec = std::make_unique<Codec>();
    if (!codec->open(library, settings)) {
        spdlog::error("AV1Encoder: aom_codec_enc_init failed: {}",
                      aom_codec_error(&codec->context));
        return false;
    }
    tuning.applyControls(codec->context);

    if (!codec->allocateImage(settings.g_w, settings.g_h)) {
        spdlog::error("AV1Encoder: aom_img_alloc failed ({}x{})", config.width, config.height);
        return false;
    }
    m_codec = std::move(codec);
    m_initialized = true;
    spdlog::info("AV1Encoder: initialized ({}x{} @ {} fps, CQ {}, bitrate {} kbps, cpu-used={})",
                 config.width, config.height, config.fps, tuning.cqLevel(), config.bitrateKbps,
                 tuning.speed());
    return true;
}

void AV1Encoder::shutdown() {
    m_codec.reset();
    m_frameCounter = 0;
    m_initialized = false;
}

std::unique_ptr<EncodedPacket> AV1Encoder::encode(const uint8_t* nv12, int width, int height,
                                                  uint64_t timestamp, bool forceKeyframe) {
    if (!m_initialized) {
        spdlog::error("AV1Encoder: encode called before initialization");
        return nullptr;
    }
    if (width != m_config.width || height != m_config.height) {
        spdlog::error("AV1Encoder: frame dimensions {}x{} do not match configured {}x{}", width,
                      height, m_config.width, m_config.height);
        return nullptr;
    }
    fillImage(nv12);
    const aom_enc_frame_flags_t flags = forceKeyframe ? AOM_EFLAG_FORCE_KF : 0;
    if (aom_codec_encode(&m_codec->context, &m_codec->image, m_frameCounter, 1, flags) !=
        AOM_CODEC_OK) {
        spdlog::error("AV1Encoder: aom_codec_encode failed: {}",
                      aom_codec_error(&m_codec->context));
        return nullptr;
    }
    ++m_frameCounter;
    return takePacket(timestamp);
}

void AV1Encoder::fillImage(const uint8_t* nv12) {
    const aom_image_t& image = m_codec->image;
    const auto width = static_cast<size_t>(m_config.width);
    const auto height = static_cast<size_t>(m_config.height);
    const auto rowOf = [&image](int plane, size_t row) {
        return image.planes[plane] + row * static_cast<size_t>(image.stride[plane]);
    };
    for (size_t row = 0; row < height; ++row) {
        std::memcpy(rowOf(AOM_PLANE_Y, row), nv12 + row * width, width);
    }
    const uint8_t* const chroma = nv12 + width * height;
    for (size_t row = 0; row < height / 2; ++row) {
        splitChromaRow(chroma + row * width, width / 2, rowOf(AOM_PLANE_U, row),
                       rowOf(AOM_PLANE_V, row));
    }
}

std::unique_ptr<EncodedPacket> AV1Encoder::takePacket(uint64_t timestamp) {
    aom_codec_iter_t position = nullptr;
    const aom_codec_cx_pkt_t* packet = nullptr;
    do {
        packet = aom_codec_get_cx_data(&m_codec->context, &position);
    } while (packet != nullptr && packet->kind != AOM_CODEC_CX_FRAME_PKT);
    if (packet == nullptr) {
        spdlog::debug("AV1Encoder: no output packet yet (buffering)");
        return nullptr;
    }
    const auto& frame = packet->data.frame;
    const auto* const bytes = static_cast<const uint8_t*>(frame.buf);
    auto encoded = std::make_unique<EncodedPacket>();
    encoded->data = copyBytes({bytes, frame.sz});
    encoded->timestamp = timestamp;
    encoded->isKeyframe = (frame.flags & AOM_FRAME_IS_KEY) != 0;
    encoded->pts = frame.pts;
    encoded->dts = frame.pts;
    spdlog::trace("AV1Encoder: encoded frame {} ({} bytes, {})", m_frameCounter - 1, frame.sz,
                  encoded->isKeyframe ? "keyframe" : "delta");
    return encoded;
}

void AV1Encoder::updateBitrate(int kbps) {
    if (!m_initialized) {
        spdlog::warn("AV1Encoder: updateBitrate called before initialization");
        return;
    }
    if (kbps <= 0) {
        spdlog::warn("AV1Encoder: ignoring invalid bitrate {} kbps", kbps);
        return;
    }
    m_config.bitrateKbps = kbps;
    const AV1Tuning tuning(m_config);
    aom_codec_enc_cfg_t settings{};
    aom_codec_err_t result =
        aom_codec_enc_config_default(aom_codec_av1_cx(), &settings, tuning.usage());
    if (result == AOM_CODEC_OK) {
        tuning.applyRateControl(settings);
        result = aom_codec_enc_config_set(&m_codec->context, &settings);
    }
    if (result != AOM_CODEC_OK) {
        spdlog::warn("AV1Encoder: config update failed: {}", aom_codec_err_to_string(result));
    }
    spdlog::info("AV1Encoder: bitrate updated to {} kbps", kbps);
}

void AV1Encoder::setQuality(int cqLevel) {
    if (m_initialized && isInteractive(m_config)) {
        AV1Tuning(m_config).applyQuality(m_codec->context, cqLevel);
    }
}

} // namespace corvane
