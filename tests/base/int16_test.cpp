#include "base/int16.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <limits>

#include "base/fault.h"

namespace horavex {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

TEST(ToInt16, TakesBothBounds) {
    EXPECT_EQ(ToInt16(32767), 32767);
    EXPECT_EQ(ToInt16(-32768), -32768);
}

TEST(ToInt16, OneBeyondEitherBoundOverflows) {
    EXPECT_THROW(ToInt16(32768), OverflowFault);
    EXPECT_THROW(ToInt16(-32769), OverflowFault);
}

TEST(ToInt16, NeverWrapsAFarValueIntoRange) {
    EXPECT_THROW(ToInt16(65536), OverflowFault);
    EXPECT_THROW(ToInt16(std::int64_t{1} << 32), OverflowFault);
    EXPECT_THROW(ToInt16(std::numeric_limits<std::int64_t>::min()), OverflowFault);
    EXPECT_THROW(ToInt16(std::numeric_limits<std::int64_t>::max()), OverflowFault);
}

TEST(RoundToInt16, TiesGoToTheEvenNeighbour) {
    EXPECT_EQ(RoundToInt16(0.5), 0);
    EXPECT_EQ(RoundToInt16(1.5), 2);
    EXPECT_EQ(RoundToInt16(2.5), 2);
    EXPECT_EQ(RoundToInt16(-0.5), 0);
    EXPECT_EQ(RoundToInt16(-1.5), -2);
    EXPECT_EQ(RoundToInt16(-2.5), -2);
}

TEST(RoundToInt16, HighestValueReachesToJustBelowTheTie) {
    EXPECT_EQ(RoundToInt16(std::nextafter(32767.5, 0.0)), 32767);
    EXPECT_THROW(RoundToInt16(32767.5), OverflowFault);  // the even neighbour is 32768
}

TEST(RoundToInt16, LowestValueTakesItsTieIn) {
    EXPECT_EQ(RoundToInt16(-32768.5), -32768);  // the even neighbour is in range here
    EXPECT_THROW(RoundToInt16(std::nextafter(-32768.5, -kInfinity)), OverflowFault);
}

TEST(RoundToInt16, WhatIsNoFiniteNumberOverflows) {
    EXPECT_THROW(RoundToInt16(kNoNumber), OverflowFault);
    EXPECT_THROW(RoundToInt16(kInfinity), OverflowFault);
    EXPECT_THROW(RoundToInt16(-kInfinity), OverflowFault);
    EXPECT_THROW(RoundToInt16(std::numeric_limits<double>::max()), OverflowFault);
}

TEST(TruncateToInt16, DropsTheFractionTowardZero) {
    EXPECT_EQ(TruncateToInt16(2.999), 2);
    EXPECT_EQ(TruncateToInt16(-2.999), -2);
    EXPECT_EQ(TruncateToInt16(-0.999), 0);
}

TEST(TruncateToInt16, FractionsBeyondTheBoundsStillFit) {
    EXPECT_EQ(TruncateToInt16(std::nextafter(32768.0, 0.0)), 32767);
    EXPECT_EQ(TruncateToInt16(std::nextafter(-32769.0, 0.0)), -32768);
}

TEST(TruncateToInt16, TheNextWholeNumberBeyondOverflows) {
    EXPECT_THROW(TruncateToInt16(32768.0), OverflowFault);
    EXPECT_THROW(TruncateToInt16(-32769.0), OverflowFault);
}

TEST(TruncateToInt16, WhatIsNoFiniteNumberOverflows) {
    EXPECT_THROW(TruncateToInt16(kNoNumber), OverflowFault);
    EXPECT_THROW(TruncateToInt16(kInfinity), OverflowFault);
    EXPECT_THROW(TruncateToInt16(-kInfinity), OverflowFault);
}

TEST(AddInt16, StopsAtTheBounds) {
    EXPECT_EQ(AddInt16(32766, 1), 32767);
    EXPECT_EQ(AddInt16(-32767, -1), -32768);
    EXPECT_THROW(AddInt16(32767, 1), OverflowFault);
    EXPECT_THROW(AddInt16(-32768, -1), OverflowFault);
}

TEST(SubtractInt16, StopsAtTheBounds) {
    EXPECT_EQ(SubtractInt16(-1, 32767), -32768);
    EXPECT_EQ(SubtractInt16(-1, -32768), 32767);
    EXPECT_THROW(SubtractInt16(0, -32768), OverflowFault);
    EXPECT_THROW(SubtractInt16(-2, 32767), OverflowFault);
}

TEST(MultiplyInt16, StopsAtTheBounds) {
    EXPECT_EQ(MultiplyInt16(4681, 7), 32767);
    EXPECT_EQ(MultiplyInt16(16384, -2), -32768);
    EXPECT_THROW(MultiplyInt16(16384, 2), OverflowFault);
    EXPECT_THROW(MultiplyInt16(-32768, -1), OverflowFault);
    EXPECT_THROW(MultiplyInt16(-32768, -32768), OverflowFault);
    EXPECT_THROW(MultiplyInt16(256, 256), OverflowFault);  // 65536 would wrap to 0
}

}  // namespace
}  // namespace horavex
