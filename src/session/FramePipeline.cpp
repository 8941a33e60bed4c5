#include "session/FramePipeline.h"

#include "crypto/AesGcmCipher.h"
#include "media/HalfSize.h"
#include "session/StreamLevel.h"

#include <spdlog/spdlog.h>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

/// Levels of the encoder for the first, second and later repetitions of a still picture. Behind the
/// last one, text cannot be told from the original.
constexpr std::array kRefinedLevels{26, 15, 5};

bool isUsable(const CapturedFrame& frame) {
    if (frame.width <= 0 || frame.height <= 0 || frame.stride / 4 < frame.width) {
        return false;
    }
    const auto rows = static_cast<size_t>(frame.height);
    return frame.data.size() / rows >= static_cast<size_t>(frame.stride);
}

} // namespace

FramePipeline::FramePipeline(StreamingSettings settings, AesGcmCipher& cipher,
                             std::unique_ptr<IVideoEncoder> encoder)
    : m_settings(std::move(settings)), m_cipher(cipher), m_encoder(std::move(encoder)) {}

std::optional<ByteVector> FramePipeline::process(const CapturedFrame& frame) {
    if (!isUsable(frame)) {
        return std::nullopt;
    }
    PixelView pixels{frame.data.data(), frame.width, frame.height, frame.stride};
    if (streamLevel(m_level).halfSize) {
        pixels = halfSize(pixels, m_half);
    }
    ByteVector nv12 = allocateNV12(pixels.width, pixels.height);
    m_converter.convert(pixels.bgra, pixels.width, pixels.height, pixels.stride, nv12.data(), 0);
    if (!prepareEncoder(pixels.width, pixels.height)) {
        return std::nullopt;
    }
    const bool repeats = frame.keyframeRequested && m_packetIsKeyframe && nv12 == m_picture;
    if (!repeats && !encode(frame, pixels.width, pixels.height, std::move(nv12))) {
        return std::nullopt;
    }
    ByteVector sealed = m_cipher.encrypt(m_packet);
    if (sealed.empty()) {
        spdlog::error("Failed to encrypt video packet");
        return std::nullopt;
    }
    return sealed;
}

void FramePipeline::shutdown() {
    m_packetIsKeyframe = false;
    if (m_encoder->isInitialized()) {
        m_encoder->shutdown();
    }
}

bool FramePipeline::encode(const CapturedFrame& frame, int width, int height, ByteVector nv12) {
    m_packetIsKeyframe = false;
    m_encoder->setQuality(qualityOf(frame));
    auto packet =
        m_encoder->encode(nv12.data(), width, height, frame.timestamp, frame.keyframeRequested);
    if (!packet || packet->data.empty()) {
        return false;
    }
    m_picture = std::move(nv12);
    m_packet = std::move(packet->data);
    m_packetIsKeyframe = packet->isKeyframe;
    return true;
}

int FramePipeline::qualityOf(const CapturedFrame& frame) const {
    if (frame.refinement == 0) {
        return m_settings.encoderQuality + streamLevel(m_level).coarserBy;
    }
    const auto step = std::min(static_cast<size_t>(frame.refinement), kRefinedLevels.size()) - 1;
    return std::min(m_settings.encoderQuality, kRefinedLevels[step]);
}

bool FramePipeline::prepareEncoder(int width, int height) {
    const auto [oldWidth, oldHeight] = m_encoder->configuredSize();
    if (m_encoder->isInitialized() && (oldWidth != width || oldHeight != height)) {
        spdlog::info("Frame resolution changed ({}x{} -> {}x{}), reinitializing encoder", oldWidth,
                     oldHeight, width, height);
        shutdown();
    }
    if (m_encoder->isInitialized()) {
        return true;
    }
    EncoderConfig config;
    config.width = width;
    config.height = height;
    config.fps = m_settings.captureFrameRate;
    config.cqLevel = m_settings.encoderQuality;
    config.speedPreset = m_settings.encoderSpeed;
    config.profile = kInteractiveProfile;
    if (!m_encoder->initialize(config)) {
        spdlog::error("Failed to initialize AV1 encoder ({}x{})", width, height);
        return false;
    }
    return true;
}

} // namespace corvane
