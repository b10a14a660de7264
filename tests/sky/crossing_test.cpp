#include "sky/crossing.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "sky/horizon.h"

namespace horavex {
namespace {

constexpr double kTenthOfASecond = 0.1 / kSecondsPerDay;

double Parabola(Date instant) {
    return (instant - 1.0) * (instant - 3.0);
}

TEST(CrossingsOf, FindsBothWaysInTheirOrder) {
    const auto found = CrossingsOf(Parabola, 0.0, 4.0, 0.3);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_NEAR(found[0].instant, 1.0, kTenthOfASecond);
    EXPECT_FALSE(found[0].rising);
    EXPECT_NEAR(found[1].instant, 3.0, kTenthOfASecond);
    EXPECT_TRUE(found[1].rising);
}

TEST(CrossingsOf, EndsBeforeTheEnd) {
    EXPECT_EQ(CrossingsOf(Parabola, 0.0, 2.99, 0.3).size(), 1U);
    EXPECT_TRUE(CrossingsOf(Parabola, 4.0, 9.0, 0.3).empty());
}

TEST(CrossingsOf, TellsAPassageOnTheSeamOfTwoSpansOnce) {
    const auto found =
        CrossingsOf(Parabola, 0.0, 1.0, 0.3).size() + CrossingsOf(Parabola, 1.0, 2.0, 0.3).size();
    EXPECT_EQ(found, 1U);
    EXPECT_TRUE(CrossingsOf(Parabola, 0.0, 1.0, 0.3).empty()) << "zero still counts as above";
}

TEST(FirstCrossing, IsTheFirstThatGoesTheAskedWay) {
    EXPECT_NEAR(FirstCrossing(Parabola, 0.0, 4.0, 0.3, false).value(), 1.0, kTenthOfASecond);
    EXPECT_NEAR(FirstCrossing(Parabola, 0.0, 4.0, 0.3, true).value(), 3.0, kTenthOfASecond);
    EXPECT_FALSE(FirstCrossing(Parabola, 0.0, 2.9, 0.3, true));
}

TEST(FirstCrossing, LooksNoFurtherThanItHasTo) {
    double furthest = 0.0;
    const SkyQuantity quantity = [&](Date instant) {
        furthest = std::max(furthest, instant);
        return Parabola(instant);
    };
    FirstCrossing(quantity, 0.0, 4.0, 0.3, false);
    EXPECT_LT(furthest, 1.3);
}

TEST(CrossingsOf, PassesOverTheTurnOfAnAngle) {
    const auto turning = [](Date instant) { return SignedDegrees(360.0 * instant); };
    const auto found = CrossingsOf(turning, 0.25, 2.75, 0.1);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_NEAR(found[0].instant, 1.0, kTenthOfASecond);
    EXPECT_NEAR(found[1].instant, 2.0, kTenthOfASecond);
}

}  // namespace
}  // namespace horavex
