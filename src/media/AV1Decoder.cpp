#include "media/AV1Decoder.h"

#include <dav1d/dav1d.h>
#include <spdlog/spdlog.h>

#include <cerrno>
#include <cstddef>
#include <cstring>
#include <utility>

namespace corvane {

namespace {

constexpr int kTryAgain = DAV1D_ERR(EAGAIN);

/// No screen is larger; a packet that claims more must not cause such an allocation.
constexpr unsigned kMaxPixels = 16384U * 16384U;

/// A packet on its way into the library. Whatever the library does not accept is released.
struct PacketData {
    Dav1dData data{};

    PacketData() = default;
    PacketData(const PacketData&) = delete;
    PacketData& operator=(const PacketData&) = delete;
    ~PacketData() { dav1d_data_unref(&data); }
};

/// A reference to one of the library's pictures, which may be shared.
struct Picture {
    Dav1dPicture picture{};

    Picture() = default;
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    ~Picture() { dav1d_picture_unref(&picture); }
};

/// The luma plane without padding: the picture's own memory if its rows have none, else a copy.
PlaneBytes lumaOf(std::shared_ptr<const Picture> owner) {
    const Dav1dPicture& picture = owner->picture;
    const auto* source = static_cast<const uint8_t*>(picture.data[0]);
    const auto width = static_cast<size_t>(picture.p.w);
    const auto height = static_cast<size_t>(picture.p.h);
    if (picture.stride[0] == picture.p.w) {
        return {std::shared_ptr<const uint8_t>(std::move(owner), source), width * height};
    }
    ByteVector luma(width * height);
    for (size_t row = 0; row < height; ++row) {
        std::memcpy(luma.data() + row * width, source, width);
        source += picture.stride[0];
    }
    return luma;
}

void interleaveRow(const uint8_t* __restrict cb, const uint8_t* __restrict cr, size_t pairs,
                   uint8_t* __restrict interleaved) {
    for (size_t i = 0; i < pairs; ++i) {
        interleaved[2 * i] = cb[i];
        interleaved[2 * i + 1] = cr[i];
    }
}

ByteVector chromaOf(const Dav1dPicture& picture) {
    const auto width = static_cast<size_t>(picture.p.w);
    const auto height = static_cast<size_t>(picture.p.h) / 2;
    const auto* cb = static_cast<const uint8_t*>(picture.data[1]);
    const auto* cr = static_cast<const uint8_t*>(picture.data[2]);
    ByteVector chroma(width * height);
    uint8_t* target = chroma.data();
    for (size_t row = 0; row < height; ++row) {
        interleaveRow(cb, cr, width / 2, target);
        if (width % 2 != 0) {
            target[width - 1] = 0;
        }
        cb += picture.stride[1];
        cr += picture.stride[1];
        target += width;
    }
    return chroma;
}

std::unique_ptr<DecodedFrame> frameOf(const std::shared_ptr<const Picture>& output,
                                      uint64_t timestamp) {
    const Dav1dPicture& picture = output->picture;
    auto frame = std::make_unique<DecodedFrame>();
    frame->yPlane = lumaOf(output);
    frame->uvPlane = chromaOf(picture);
    frame->width = picture.p.w;
    frame->height = picture.p.h;
    frame->yStride = picture.p.w;
    frame->uvStride = picture.p.w;
    frame->timestamp = timestamp;
    return frame;
}

} // namespace

AV1Decoder::AV1Decoder() = default;

AV1Decoder::~AV1Decoder() {
    AV1Decoder::shutdown();
}

bool AV1Decoder::initialize(int width, int height) {
    shutdown();
    m_expectedWidth = width;
    m_expectedHeight = height;

    Dav1dSettings settings;
    dav1d_default_settings(&settings);
    settings.n_threads = 0;
    settings.max_frame_delay = 1;
    settings.frame_size_limit = kMaxPixels;
    // The library would log to stderr; our own log lines report the result codes.
    settings.logger.callback = nullptr;
    const int result = dav1d_open(&m_context, &settings);
    if (result < 0) {
        spdlog::error("AV1Decoder: dav1d_open failed (error {})", result);
        return false;
    }
    m_initialized = true;
    spdlog::info("AV1Decoder: initialized using dav1d (expected {}x{})", m_expectedWidth,
                 m_expectedHeight);
    return true;
}

void AV1Decoder::shutdown() {
    if (m_context != nullptr) {
        dav1d_close(&m_context);
    }
    m_initialized = false;
}

std::unique_ptr<DecodedFrame> AV1Decoder::decode(const uint8_t* data, size_t size,
                                                 uint64_t timestamp) {
    if (!m_initialized) {
        spdlog::error("AV1Decoder: decode called before initialization");
        return nullptr;
    }
    if (data == nullptr || size == 0) {
        spdlog::warn("AV1Decoder: empty input data");
        return nullptr;
    }
    if (!send(data, size)) {
        return nullptr;
    }

    const auto output = std::make_shared<Picture>();
    const Dav1dPicture& picture = output->picture;
    const int result = dav1d_get_picture(m_context, &output->picture);
    if (result == kTryAgain) {
        spdlog::debug("AV1Decoder: decoder needs more data (EAGAIN)");
        return nullptr;
    }
    if (result < 0) {
        spdlog::error("AV1Decoder: dav1d_get_picture failed (error {})", result);
        return nullptr;
    }
    if (picture.p.layout != DAV1D_PIXEL_LAYOUT_I420 || picture.p.bpc != 8) {
        spdlog::error("AV1Decoder: unsupported pixel format (layout={}, bpc={})",
                      static_cast<int>(picture.p.layout), picture.p.bpc);
        return nullptr;
    }
    auto frame = frameOf(output, timestamp);
    spdlog::trace("AV1Decoder: decoded frame {}x{} ({} + {} bytes)", frame->width, frame->height,
                  frame->yPlane.size(), frame->uvPlane.size());
    return frame;
}

bool AV1Decoder::send(const uint8_t* data, size_t size) {
    PacketData packet;
    uint8_t* const buffer = dav1d_data_create(&packet.data, size);
    if (buffer == nullptr) {
        spdlog::error("AV1Decoder: dav1d_data_create failed");
        return false;
    }
    std::memcpy(buffer, data, size);
    const int result = dav1d_send_data(m_context, &packet.data);
    // A full decoder is not a failure: it still holds a picture, and the packet is dropped.
    if (result < 0 && result != kTryAgain) {
        spdlog::error("AV1Decoder: dav1d_send_data failed (error {})", result);
        return false;
    }
    return true;
}

} // namespace corvane
