#include "common/ByteReader.h"
#include "common/ByteWriter.h"

#include <gtest/gtest.h>

namespace corvane {
namespace {

TEST(ByteCodec, FieldsAreLittleEndianAndUnpadded) {
    ByteWriter writer;
    writer.integer<uint8_t>(0x01);
    writer.integer<uint16_t>(0x0203);
    writer.integer<uint32_t>(0x04050607);
    writer.integer<uint64_t>(0x08090A0B0C0D0E0F);
    writer.binary64(1.0);
    const ByteVector expected{0x01, 0x03, 0x02, 0x07, 0x06, 0x05, 0x04, 0x0F,
                              0x0E, 0x0D, 0x0C, 0x0B, 0x0A, 0x09, 0x08, 0x00,
                              0x00, 0x00, 0x00, 0x00, 0x00, 0xF0, 0x3F};
    EXPECT_EQ(writer.take(), expected);
}

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
