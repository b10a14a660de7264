#include "store/data_text.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

std::uint8_t DecodeOne(int code) {
    const Bytes stored = {static_cast<std::uint8_t>(code)};
    return DecodeText(stored).at(0);
}

TEST(DecodeText, LowCodesMoveUpBy127) {
    for (int code = 1; code <= 127; ++code) {
        EXPECT_EQ(DecodeOne(code), code + 127);
    }
}

TEST(DecodeText, HighCodesMoveDownBy127) {
    for (int code = 128; code <= 254; ++code) {
        EXPECT_EQ(DecodeOne(code), code - 127);
    }
}

TEST(DecodeText, ZeroAnd255Stay) {
    EXPECT_EQ(DecodeOne(0), 0);
    EXPECT_EQ(DecodeOne(255), 255);
}

TEST(DecodeText, TwiceGivesBackEveryCode) {
    Bytes all;
    for (int code = 0; code <= 255; ++code) {
        all.push_back(static_cast<std::uint8_t>(code));
    }
    EXPECT_EQ(DecodeText(DecodeText(all)), all);
}

TEST(DecodeText, KeepsOrderAndLength) {
    const Bytes stored = {0xC2, 0xE0, 0xE8, 0xF1, 0xEE};
    EXPECT_EQ(StringOf(DecodeText(stored)), "Cairo");
    EXPECT_TRUE(DecodeText(Bytes()).empty());
}

}  // namespace
}  // namespace horavex
