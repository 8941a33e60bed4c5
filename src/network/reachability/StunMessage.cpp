#include "network/reachability/StunMessage.h"

#include "common/ByteViews.h"

#include <QtEndian>

#include <algorithm>

namespace corvane {

namespace {

constexpr uint16_t kBindingRequest = 0x0001;
constexpr uint16_t kBindingSuccess = 0x0101;
constexpr uint16_t kMappedAddress = 0x0001;
constexpr uint16_t kXorMappedAddress = 0x0020;
constexpr uint32_t kMagicCookie = 0x2112A442;
constexpr uint8_t kFamilyIpv4 = 0x01;

constexpr size_t kHeaderBytes = 20;
constexpr size_t kAttributeHeaderBytes = 4;
constexpr size_t kIpv4MappingBytes = 8; // reserved, family, port, address
constexpr size_t kAttributeAlignment = 4;

template <typename T>
T bigEndian(ByteSpan bytes, size_t offset) {
    return qFromBigEndian<T>(bytes.subspan(offset, sizeof(T)).data());
}

std::optional<MappedAddress> mappingIn(uint16_t type, ByteSpan value) {
    if ((type != kMappedAddress && type != kXorMappedAddress) || value.size() < kIpv4MappingBytes ||
        value[1] != kFamilyIpv4) {
        return std::nullopt;
    }
    const uint32_t mask = type == kXorMappedAddress ? kMagicCookie : 0;
    const auto port = static_cast<uint16_t>(bigEndian<uint16_t>(value, 2) ^ (mask >> 16));
    return MappedAddress{QHostAddress(bigEndian<uint32_t>(value, 4) ^ mask), port};
}

} // namespace

QByteArray stunBindingRequest(const StunTransactionId& transactionId) {
    std::array<uint8_t, kHeaderBytes> message{};
    qToBigEndian(kBindingRequest, message.data());
    qToBigEndian(kMagicCookie, message.data() + 4);
    std::copy(transactionId.begin(), transactionId.end(), message.begin() + 8);
    return viewOf(message).toByteArray();
}

std::optional<MappedAddress> parseStunBindingResponse(ByteSpan datagram) {
    if (datagram.size() < kHeaderBytes || bigEndian<uint16_t>(datagram, 0) != kBindingSuccess) {
        return std::nullopt;
    }
    ByteSpan rest = datagram.subspan(kHeaderBytes);
    while (rest.size() >= kAttributeHeaderBytes) {
        const size_t length = bigEndian<uint16_t>(rest, 2);
        if (length > rest.size() - kAttributeHeaderBytes) {
            break;
        }
        if (const auto mapping = mappingIn(bigEndian<uint16_t>(rest, 0),
                                           rest.subspan(kAttributeHeaderBytes, length))) {
            return mapping;
        }
        const size_t padded =
            (length + kAttributeAlignment - 1) / kAttributeAlignment * kAttributeAlignment;
        rest = rest.subspan(std::min(kAttributeHeaderBytes + padded, rest.size()));
    }
    return std::nullopt;
}

} // namespace corvane
