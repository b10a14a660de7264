// The noons over the Kaaba as the Saudi press prints them every year: 12:18 on 27 or 28 May, 12:27
// on 15 or 16 July, of the clock there.

#include "sky/qibla_by_sun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "linux/erfa_almanac.h"

namespace horavex {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

constexpr double kMinute = 1.0 / 1440.0;

SkySpan DayOf(int year, int month, int day) {
    const Date midnight = DateSerial(year, month, day);
    return {midnight, midnight + 1.0};
}

TEST(SunOverMecca, IsAtNoonOfTwoDaysOfAYear) {
    for (const int year : {2024, 2025, 2026, 2027}) {
        const auto noons = SunOverMecca(ErfaAlmanac(), year);
        ASSERT_THAT(noons, SizeIs(2));
        EXPECT_NEAR(noons[0] - std::floor(noons[0]), TimeSerial(9, 18, 0), kMinute);
        EXPECT_NEAR(noons[1] - std::floor(noons[1]), TimeSerial(9, 27, 0), kMinute);
        EXPECT_THAT(CivilFromDate(noons[0]).day, testing::AnyOf(27, 28));
        EXPECT_THAT(CivilFromDate(noons[1]).day, testing::AnyOf(15, 16));
        for (const Date noon : noons) {
            EXPECT_GT(SunOver(ErfaAlmanac(), {21.42249, 39.82621}, noon).altitude, 89.75);
        }
    }
}

// The bearing of London to the Kaaba is 118.99 degrees.
TEST(ShownBySun, AtTheNoonOverMeccaTheSunOfLondonStandsOnItsQibla) {
    const Observer london{51.5, -0.12};
    const Date noon = SunOverMecca(ErfaAlmanac(), 2026)[0];
    const DirectionBySun shown = ShownBySun(ErfaAlmanac(), london, DayOf(2026, 5, 28), 118.99);
    ASSERT_THAT(shown.sun, SizeIs(1));
    EXPECT_NEAR(shown.sun[0], noon, 2.0 * kMinute);
}

TEST(ShownBySun, SunAndShadowStandOnTheBearing) {
    const Observer cairo{30.05, 31.25};
    const DirectionBySun shown = ShownBySun(ErfaAlmanac(), cairo, DayOf(2026, 3, 1), 136.0);
    ASSERT_THAT(shown.sun, SizeIs(1));
    EXPECT_NEAR(SunOver(ErfaAlmanac(), cairo, shown.sun[0]).bearing, 136.0, 0.01);
    EXPECT_THAT(shown.shadow, IsEmpty()) << "the sun sets before it is in the north-west";
    const DirectionBySun summer = ShownBySun(ErfaAlmanac(), cairo, DayOf(2026, 6, 21), 110.0);
    ASSERT_THAT(summer.shadow, SizeIs(1));
    EXPECT_NEAR(SunOver(ErfaAlmanac(), cairo, summer.shadow[0]).bearing, 290.0, 0.01);
}

TEST(ShownBySun, SunBelowTheHorizonShowsNothing) {
    const Observer tromso{69.65, 18.96};
    const DirectionBySun shown = ShownBySun(ErfaAlmanac(), tromso, DayOf(2026, 12, 21), 157.0);
    EXPECT_THAT(shown.sun, IsEmpty());
    EXPECT_THAT(shown.shadow, IsEmpty());
}

}  // namespace
}  // namespace horavex
