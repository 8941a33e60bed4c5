#pragma once

#include "common/ByteVector.h"

#include <QByteArray>
#include <QHostAddress>

#include <array>
#include <cstdint>
#include <optional>

namespace corvane {

using StunTransactionId = std::array<uint8_t, 12>;

/// The address from which a STUN server received a request; always IPv4.
struct MappedAddress {
    QHostAddress address;
    uint16_t port = 0;

    bool operator==(const MappedAddress&) const = default;
};

/// A Binding Request without attributes.
QByteArray stunBindingRequest(const StunTransactionId& transactionId);

/// The first IPv4 mapping in a Binding Success Response. No value for any other datagram, including
/// malformed ones. Cookie and transaction ID are ignored.
std::optional<MappedAddress> parseStunBindingResponse(ByteSpan datagram);

} // namespace corvane
