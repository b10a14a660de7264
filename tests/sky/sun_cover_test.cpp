#include "sky/sun_cover.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(SunCover, IsNothingWhereTheDiscsOnlyTouch) {
    const SunCover touching{0.5, 0.25, 0.25};
    EXPECT_NEAR(touching.Gap(), 0.0, 1e-12);
    EXPECT_NEAR(touching.Magnitude(), 0.0, 1e-12);
    EXPECT_EQ((SunCover{0.6, 0.25, 0.25}).Obscuration(), 0.0);
}

// Two equal discs whose edges go through each other's centres: 2/3 - sqrt(3) / (2 pi) in common.
TEST(SunCover, OfEqualDiscsIsKnown) {
    const SunCover half{0.25, 0.25, 0.25};
    EXPECT_NEAR(half.Magnitude(), 0.5, 1e-12);
    EXPECT_NEAR(half.Obscuration(), 0.391002, 1e-6);
}

TEST(SunCover, HidesTheSunBehindALargerMoon) {
    const SunCover total{0.001, 0.25, 0.26};
    EXPECT_LT(total.InnerGap(), 0.0);
    EXPECT_TRUE(total.HidesSun());
    EXPECT_EQ(total.Obscuration(), 1.0);
    EXPECT_GT(total.Magnitude(), 1.0);
}

TEST(SunCover, LeavesARingAroundASmallerMoon) {
    const SunCover annular{0.001, 0.25, 0.24};
    EXPECT_LT(annular.InnerGap(), 0.0);
    EXPECT_FALSE(annular.HidesSun());
    EXPECT_NEAR(annular.Obscuration(), 0.9216, 1e-12);
    EXPECT_NEAR(annular.Magnitude(), 0.96 * 0.272281 / 0.2725076, 1e-12);
}

// The mean disc would hide the sun, but light comes through the valleys of its edge.
TEST(SunCover, IsARingWhereOnlyMountainsReachOverTheSun) {
    const SunCover narrow{0.0, 0.25, 0.2501};
    EXPECT_LT(narrow.InnerGap(), 0.0);
    EXPECT_FALSE(narrow.HidesSun());
}

}  // namespace
}  // namespace horavex
