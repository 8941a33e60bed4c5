#include "network/reachability/StunMessage.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

/// "address:port", or "nothing".
std::string parsed(const QByteArray& datagram) {
    // A copy of exactly this size, so that a sanitizer sees a read past the end.
    const ByteVector bytes(datagram.begin(), datagram.end());
    const auto mapping = parseStunBindingResponse(bytes);
    return mapping ? mapping->address.toString().toStdString() + ':' + std::to_string(mapping->port)
                   : "nothing";
}

const QByteArray kHeader = "0101 0000 2112a442 000102030405060708090a0b ";
const QByteArray kXor = "0020 0008 0001 a147 e112a643 ";
const QByteArray kPlain = "0001 0008 0001 1f90 c6336407 ";
const QByteArray kXorIpv6 = "0020 0014 0002 a147 000102030405060708090a0b0c0d0e0f ";
const QByteArray kUnknownPadded = "8022 0005 68656c6c 6f000000 ";

TEST(StunMessage, TheFirstIpv4MappingOfASuccessCounts) {
    const std::pair<QByteArray, std::string> cases[] = {
        {kHeader + kXor, "192.0.2.1:32853"},
        {kHeader + kPlain, "198.51.100.7:8080"},
        {kHeader + kPlain + kXor, "198.51.100.7:8080"},
        {kHeader + kXorIpv6 + kXor, "192.0.2.1:32853"},
        {kHeader + kUnknownPadded + kXor, "192.0.2.1:32853"},
        {kHeader + "8022 0000 " + kXor, "192.0.2.1:32853"},
        {kHeader + "0020 000b ff01 a147 e112a643 00112200", "192.0.2.1:32853"},
        {"0101 ffff 00000000 ffffffffffffffffffffffff" + kXor, "192.0.2.1:32853"},
        {"", "nothing"},
        {kHeader, "nothing"},
        {kHeader.mid(0, 44) + "0a", "nothing"},
        {"0111" + kHeader.mid(4) + kXor, "nothing"},
        {"0001" + kHeader.mid(4) + kXor, "nothing"},
        {kHeader + kXorIpv6, "nothing"},
        {kHeader + "0020 0007 0001 a147 e112a643", "nothing"},
        {kHeader + "8022 ffff " + kXor, "nothing"},
        {kHeader + "8022 0005 68656c6c 6f", "nothing"},
        {kHeader + "0020 0008 0003 a147 e112a643", "nothing"},
    };
    for (const auto& [hex, result] : cases) {
        EXPECT_EQ(parsed(QByteArray::fromHex(hex)), result) << hex.toStdString();
    }
}

TEST(StunMessage, ATruncatedResponseSaysNothing) {
    const QByteArray whole = QByteArray::fromHex(kHeader + kUnknownPadded + kXor);
    for (qsizetype size = 0; size < whole.size(); ++size) {
        EXPECT_EQ(parsed(whole.left(size)), "nothing") << size;
    }
}

} // namespace
} // namespace corvane
