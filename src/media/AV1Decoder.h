#pragma once

#include "media/IVideoDecoder.h"

struct Dav1dContext;

namespace corvane {

/// dav1d configured for the lowest latency: the call that takes a packet returns its picture. A
/// frame keeps the library's picture for its luma plane if the rows have no padding, and may
/// outlive the decoder.
class AV1Decoder : public IVideoDecoder {
public:
    AV1Decoder();
    ~AV1Decoder() override;
    AV1Decoder(const AV1Decoder&) = delete;
    AV1Decoder& operator=(const AV1Decoder&) = delete;

    bool initialize(int width, int height) override;
    void shutdown() override;

    /// Takes 8-bit 4:2:0 streams of any size.
    std::unique_ptr<DecodedFrame> decode(const uint8_t* data, size_t size,
                                         uint64_t timestamp) override;

    bool isInitialized() const override { return m_initialized; }

private:
    bool send(const uint8_t* data, size_t size);

    Dav1dContext* m_context = nullptr;
    int m_expectedWidth = 0;
    int m_expectedHeight = 0;
    bool m_initialized = false;
};

} // namespace corvane
