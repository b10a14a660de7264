#include "sky/low_point.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

constexpr double kTenth = 0.1 / kSecondsPerDay;

double Bowl(Date instant) {
    return (instant - 5.3) * (instant - 5.3) - 0.01;
}

TEST(LeastOf, FindsTheLowOfABowl) {
    EXPECT_NEAR(LeastOf(Bowl, {5.0, 5.5}), 5.3, 2.0 * kTenth);
}

TEST(LeastOf, StaysInTheSpan) {
    EXPECT_NEAR(LeastOf(Bowl, {5.0, 5.2}), 5.2, 2.0 * kTenth);
    EXPECT_NEAR(LeastOf(Bowl, {5.4, 5.6}), 5.4, 2.0 * kTenth);
}

TEST(BelowZeroAround, ReachesToTheNearestZeroOfEitherSide) {
    const SkySpan span = BelowZeroAround(Bowl, 5.3, 0.4);
    EXPECT_NEAR(span.from, 5.2, kTenth);
    EXPECT_NEAR(span.end, 5.4, kTenth);
}

TEST(BelowZeroAround, EndsWhereItMayLookNoFarther) {
    const SkySpan span = BelowZeroAround(Bowl, 5.3, 0.05);
    EXPECT_NEAR(span.from, 5.25, kTenth);
    EXPECT_NEAR(span.end, 5.35, kTenth);
}

}  // namespace
}  // namespace horavex
