#include "session/FramePipeline.h"

#include "crypto/AesGcmCipher.h"

#include <spdlog/spdlog.h>

namespace corvane {

namespace {

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
    ByteVector nv12 = allocateNV12(frame.width, frame.height);
    m_converter.convert(frame.data.data(), frame.width, frame.height, frame.stride, nv12.data(), 0);
    if (!prepareEncoder(frame.width, frame.height)) {
        return std::nullopt;
    }
    const bool repeats = frame.keyframeRequested && m_packetIsKeyframe && nv12 == m_picture;
    if (!repeats && !encode(frame, std::move(nv12))) {
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

bool FramePipeline::encode(const CapturedFrame& frame, ByteVector nv12) {
    m_packetIsKeyframe = false;
    auto packet = m_encoder->encode(nv12.data(), frame.width, frame.height, frame.timestamp,
                                    frame.keyframeRequested);
    if (!packet || packet->data.empty()) {
        return false;
    }
    m_picture = std::move(nv12);
    m_packet = std::move(packet->data);
    m_packetIsKeyframe = packet->isKeyframe;
    return true;
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
    if (!m_encoder->initialize(config)) {
        spdlog::error("Failed to initialize AV1 encoder ({}x{})", width, height);
        return false;
    }
    return true;
}

} // namespace corvane
