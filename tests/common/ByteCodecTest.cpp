#include "common/ByteReader.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(ByteCodec, ReadPastTheEndYieldsNothingAndKeepsThePosition) {
    const ByteVector bytes{0x2A, 0x01, 0x00};
    ByteReader reader(bytes);
    EXPECT_EQ(reader.integer<uint8_t>(), 0x2A);
    EXPECT_FALSE(reader.integer<uint32_t>().has_value());
    EXPECT_FALSE(reader.binary64().has_value());
    EXPECT_FALSE(reader.bytes(SIZE_MAX).has_value());
    EXPECT_EQ(reader.remaining(), 2U);
    EXPECT_EQ(reader.integer<uint16_t>(), 1U);
    EXPECT_EQ(reader.remaining(), 0U);
    EXPECT_TRUE(reader.bytes(0).has_value());
}

} // namespace
} // namespace corvane
