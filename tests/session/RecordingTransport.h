#pragma once

#include "common/ByteViews.h"
#include "transport/ITransport.h"

#include <vector>

namespace corvane::test {

/// A connected transport that keeps what it is given to send.
class RecordingTransport : public ITransport {
public:
    bool connect(const std::string&, uint16_t) override { return true; }
    void disconnect() override {}
    bool isConnected() const override { return true; }
    bool send(ChannelType, const uint8_t* data, size_t size) override {
        sent.push_back(copyBytes({data, size}));
        return true;
    }
    qint64 bytesQueued() const override { return 0; }
    bool waitUntilQueued(qint64) override { return true; }
    std::optional<double> roundTripMilliseconds() const override { return std::nullopt; }

    std::vector<ByteVector> sent;
};

} // namespace corvane::test
