#include "base/bytes.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <limits>
#include <string>

namespace horavex {
namespace {

TEST(Bytes, FieldsAreLittleEndian) {
    const Bytes bytes = {0x34, 0x12, 0x78, 0x56};
    EXPECT_EQ(GetInt16(bytes, 0), 0x1234);
    EXPECT_EQ(GetInt16(bytes, 2), 0x5678);
    EXPECT_EQ(GetInt32(bytes, 0), 0x56781234);
}

TEST(Bytes, FieldsNeedNoAlignment) {
    const Bytes bytes = {0xFF, 0x01, 0x02, 0x03, 0x04, 0xFF};
    EXPECT_EQ(GetInt16(bytes, 1), 0x0201);
    EXPECT_EQ(GetInt32(bytes, 1), 0x04030201);
}

TEST(Bytes, TheTopBitIsTheSign) {
    EXPECT_EQ(GetInt16(Bytes{0xFF, 0xFF}, 0), -1);
    EXPECT_EQ(GetInt16(Bytes{0x00, 0x80}, 0), -32768);
    EXPECT_EQ(GetInt16(Bytes{0xFF, 0x7F}, 0), 32767);
    EXPECT_EQ(GetInt16(Bytes{0x80, 0x00}, 0), 128);
    EXPECT_EQ(GetInt32(Bytes{0xFE, 0xFF, 0xFF, 0xFF}, 0), -2);
    EXPECT_EQ(GetInt32(Bytes{0x00, 0x00, 0x00, 0x80}, 0), std::numeric_limits<std::int32_t>::min());
}

TEST(Bytes, FloatIsAnIeeeDoubleLowestByteFirst) {
    EXPECT_EQ(GetFloat64(Bytes{0, 0, 0, 0, 0, 0, 0xF0, 0x3F}, 0), 1.0);
    EXPECT_EQ(GetFloat64(Bytes{9, 0, 0, 0, 0, 0, 0, 0x04, 0xC0}, 1), -2.5);
}

TEST(Bytes, PutWritesItsFieldAndNoOtherByte) {
    Bytes bytes(12, 0xAA);
    PutInt16(bytes, 1, -2);
    PutInt32(bytes, 4, -32000);
    EXPECT_EQ(bytes,
              (Bytes{0xAA, 0xFE, 0xFF, 0xAA, 0x00, 0x83, 0xFF, 0xFF, 0xAA, 0xAA, 0xAA, 0xAA}));
    PutFloat64(bytes, 2, 1.0);
    EXPECT_EQ(bytes, (Bytes{0xAA, 0xFE, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F, 0xAA, 0xAA}));
}

TEST(Bytes, EveryInt16ComesBack) {
    Bytes bytes(2);
    for (int value = -32768; value <= 32767; ++value) {
        PutInt16(bytes, 0, static_cast<std::int16_t>(value));
        ASSERT_EQ(GetInt16(bytes, 0), value);
    }
}

TEST(Bytes, EveryBitOfAnInt32ComesBack) {
    Bytes bytes(4);
    for (int bit = 0; bit < 32; ++bit) {
        const auto value = static_cast<std::int32_t>(std::uint32_t{1} << bit);
        PutInt32(bytes, 0, value);
        ASSERT_EQ(GetInt32(bytes, 0), value);
        ASSERT_EQ(bytes[static_cast<std::size_t>(bit / 8)], 1U << (bit % 8));
    }
}

// Compared by bits, since neither a NaN nor the sign of zero shows in a comparison of floats.
TEST(Bytes, FloatComesBackBitForBit) {
    Bytes bytes(8);
    const std::uint64_t cases[] = {0x0000000000000000, 0x8000000000000000,   // both zeros
                                   0x0000000000000001, 0xFFEFFFFFFFFFFFFF,   // the extremes
                                   0x7FF0000000000000, 0xFFF0000000000000,   // infinities
                                   0x7FF8000000000000, 0xFFF8DEADBEEF1234,   // quiet NaNs
                                   0x7FF0000000000001, 0x0123456789ABCDEF};  // signalling; any
    for (const std::uint64_t bits : cases) {
        PutFloat64(bytes, 0, std::bit_cast<double>(bits));
        ASSERT_EQ(bytes[0], bits & 0xFFU);
        ASSERT_EQ(bytes[7], bits >> 56);
        ASSERT_EQ(std::bit_cast<std::uint64_t>(GetFloat64(bytes, 0)), bits);
    }
}

TEST(BytesOf, KeepsEveryByteOfAText) {
    std::string text;
    for (int code = 0; code < 256; ++code) {
        text += static_cast<char>(code);
    }
    const Bytes bytes = BytesOf(text);
    ASSERT_EQ(bytes.size(), 256U);
    EXPECT_EQ(bytes[0x00], 0x00);
    EXPECT_EQ(bytes[0x80], 0x80);
    EXPECT_EQ(bytes[0xFF], 0xFF);
    EXPECT_EQ(StringOf(bytes), text);
}

TEST(BytesOf, EmptyTextIsNoBytes) {
    EXPECT_TRUE(BytesOf("").empty());
    EXPECT_TRUE(StringOf({}).empty());
}

}  // namespace
}  // namespace horavex
