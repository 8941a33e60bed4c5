#include "AV1Decoder.h"

#include "SharedLoop.h"

#include <dav1d/dav1d.h>
#include <spdlog/spdlog.h>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>

namespace corvane {

namespace {

constexpr int kTryAgain = DAV1D_ERR(EAGAIN);

/// No screen is larger; a packet that claims more must not make us allocate it.
constexpr unsigned kMaximumPixels = 16384U * 16384U;

/// Rows that are copied at a time: even, large enough to be worth handing out, and small enough
/// that neither thread waits long for the other's last ones.
constexpr int kBandRows = 64;

/// A packet on its way into the library. Whatever the library did not take is released.
struct PacketData {
    Dav1dData data{};

    PacketData() = default;
    PacketData(const PacketData&) = delete;
    PacketData& operator=(const PacketData&) = delete;
    ~PacketData() { dav1d_data_unref(&data); }
};

struct Picture {
    Dav1dPicture picture{};

    Picture() = default;
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;
    ~Picture() { dav1d_picture_unref(&picture); }
};

/// Some rows of a picture's luma plane, or of its chroma planes.
struct Rows {
    size_t first;
    size_t count;
};

void copyLuma(const Dav1dPicture& picture, Rows rows, DecodedFrame& frame) {
    const auto width = static_cast<size_t>(frame.width);
    const ptrdiff_t stride = picture.stride[0];
    const auto* source =
        static_cast<const uint8_t*>(picture.data[0]) + static_cast<ptrdiff_t>(rows.first) * stride;
    uint8_t* target = frame.yPlane.data() + rows.first * width;
    if (stride == static_cast<ptrdiff_t>(width)) {
        // One large copy moves common screen widths faster than many short ones.
        std::memcpy(target, source, rows.count * width);
        return;
    }
    for (size_t row = 0; row < rows.count; ++row) {
        std::memcpy(target, source, width);
        source += stride;
        target += width;
    }
}

void interleaveRow(const uint8_t* __restrict cb, const uint8_t* __restrict cr, size_t pairs,
                   uint8_t* __restrict interleaved) {
    for (size_t i = 0; i < pairs; ++i) {
        interleaved[2 * i] = cb[i];
        interleaved[2 * i + 1] = cr[i];
    }
}

void copyChroma(const Dav1dPicture& picture, Rows rows, DecodedFrame& frame) {
    const auto width = static_cast<size_t>(frame.width);
    const ptrdiff_t stride = picture.stride[1];
    const ptrdiff_t offset = static_cast<ptrdiff_t>(rows.first) * stride;
    const auto* cb = static_cast<const uint8_t*>(picture.data[1]) + offset;
    const auto* cr = static_cast<const uint8_t*>(picture.data[2]) + offset;
    uint8_t* target = frame.uvPlane.data() + rows.first * width;
    for (size_t row = 0; row < rows.count; ++row) {
        interleaveRow(cb, cr, width / 2, target);
        if (width % 2 != 0) {
            target[width - 1] = 0;
        }
        cb += stride;
        cr += stride;
        target += width;
    }
}

std::unique_ptr<DecodedFrame> frameOf(const Dav1dPicture& picture, uint64_t timestamp,
                                      SharedLoop& copying) {
    auto frame = std::make_unique<DecodedFrame>();
    frame->width = picture.p.w;
    frame->height = picture.p.h;
    frame->yStride = picture.p.w;
    frame->uvStride = picture.p.w;
    frame->timestamp = timestamp;
    const auto width = static_cast<size_t>(frame->width);
    const auto height = static_cast<size_t>(frame->height);
    frame->yPlane.resize(height * width);
    frame->uvPlane.resize(height / 2 * width);
    const int bands = (frame->height + kBandRows - 1) / kBandRows;
    copying.run(bands, [&](int band) {
        const size_t top = static_cast<size_t>(band) * kBandRows;
        const size_t bottom = std::min(top + kBandRows, height);
        copyLuma(picture, {top, bottom - top}, *frame);
        copyChroma(picture, {top / 2, bottom / 2 - top / 2}, *frame);
    });
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
    settings.frame_size_limit = kMaximumPixels;
    // The library would write to stderr; the result codes in our own lines say what failed.
    settings.logger.callback = nullptr;
    const int result = dav1d_open(&m_context, &settings);
    if (result < 0) {
        spdlog::error("AV1Decoder: dav1d_open failed (error {})", result);
        return false;
    }
    m_copying = std::make_unique<SharedLoop>();
    m_initialized = true;
    spdlog::info("AV1Decoder: initialized using dav1d (expected {}x{})", m_expectedWidth,
                 m_expectedHeight);
    return true;
}

void AV1Decoder::shutdown() {
    if (m_context != nullptr) {
        dav1d_close(&m_context);
    }
    m_copying.reset();
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

    Picture output;
    const Dav1dPicture& picture = output.picture;
    const int result = dav1d_get_picture(m_context, &output.picture);
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
    auto frame = frameOf(picture, timestamp, *m_copying);
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
    // A full decoder is no failure: it still holds a picture, and the packet is dropped.
    if (result < 0 && result != kTryAgain) {
        spdlog::error("AV1Decoder: dav1d_send_data failed (error {})", result);
        return false;
    }
    return true;
}

} // namespace corvane
