#pragma once

#include "media/DecodedFrame.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace corvane {

/// Decodes packets to pictures, at most one each. Not thread-safe: one thread at a time. Every
/// failure gives a log line and a null result; the decoder stays usable.
class IVideoDecoder {
public:
    virtual ~IVideoDecoder() = default;

    /// `width` and `height` are what the caller expects (0: unknown); they are only logged.
    virtual bool initialize(int width, int height) = 0;

    virtual void shutdown() = 0;

    /// `timestamp` is passed through to the picture.
    virtual std::unique_ptr<DecodedFrame> decode(const uint8_t* data, size_t size,
                                                 uint64_t timestamp) = 0;

    virtual bool isInitialized() const = 0;
};

} // namespace corvane
