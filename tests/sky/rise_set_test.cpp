// Instants of PyEphem 4.1.4, upper limb with 34 minutes of arc of refraction.

#include "sky/rise_set.h"

#include <gtest/gtest.h>

#include <cmath>

#include "linux/erfa_almanac.h"
#include "platform/even_almanac.h"

namespace horavex {
namespace {

constexpr Observer kMecca{21.4225, 39.8262};
constexpr Observer kLondon{51.5, -0.12};
constexpr Observer kHelsinki{60.17, 24.94};

SkySpan DayOf(int year, int month, int day) {
    const Date midnight = DateSerial(year, month, day);
    return {midnight, midnight + 1.0};
}

/// Within five seconds of a time of the day that begins the span.
void ExpectTime(const std::optional<Date>& instant, int hour, int minute, int second) {
    ASSERT_TRUE(instant.has_value());
    const double found = (*instant - std::floor(*instant)) * kSecondsPerDay;
    EXPECT_NEAR(found, TimeSerial(hour, minute, second) * kSecondsPerDay, 5.0);
}

TEST(SunArc, HasRiseTransitAndSet) {
    const DayArc arc = SunArc(ErfaAlmanac(), kMecca, DayOf(2026, 2, 18));
    ExpectTime(arc.rise, 3, 49, 29);
    ExpectTime(arc.transit, 9, 34, 34);
    ExpectTime(arc.set, 15, 19, 56);
    EXPECT_FALSE(arc.upAtBegin);
}

TEST(MoonArc, CountsTheNearnessOfTheMoon) {
    const DayArc mecca = MoonArc(ErfaAlmanac(), kMecca, DayOf(2026, 2, 18));
    ExpectTime(mecca.rise, 4, 20, 40);
    ExpectTime(mecca.transit, 10, 17, 15);
    ExpectTime(mecca.set, 16, 18, 55);
    const DayArc helsinki = MoonArc(ErfaAlmanac(), kHelsinki, DayOf(2026, 12, 21));
    ExpectTime(helsinki.rise, 10, 21, 59);
    ExpectTime(helsinki.transit, 19, 58, 36);
    ExpectTime(helsinki.set, 4, 22, 12);
    EXPECT_TRUE(helsinki.upAtBegin);
}

TEST(SunArc, HasNeitherRiseNorSetUnderTheMidnightSunAndInThePolarNight) {
    const Observer tromso{69.65, 18.96};
    const DayArc summer = SunArc(ErfaAlmanac(), tromso, DayOf(2026, 6, 21));
    EXPECT_FALSE(summer.rise || summer.set);
    EXPECT_TRUE(summer.upAtBegin && summer.transit);
    const DayArc winter = SunArc(ErfaAlmanac(), tromso, DayOf(2026, 12, 21));
    EXPECT_FALSE(winter.rise || winter.set || winter.upAtBegin);
}

TEST(MoonArc, HasNoRiseOnTheDayThatTheMoonSkips) {
    int days = 0;
    for (int day = 1; day <= 30; ++day) {
        const DayArc arc = MoonArc(ErfaAlmanac(), kMecca, DayOf(2026, 4, day));
        days += arc.rise.has_value() ? 1 : 0;
    }
    EXPECT_EQ(days, 29);
}

TEST(SunArc, IsTwelveHoursAndTheRefractionLongOverAnEvenEquator) {
    EvenAlmanac almanac;
    almanac.sunStart = 180.0;    // lowest at midnight of Greenwich
    almanac.sunDistance = 1e15;  // a point without parallax
    const DayArc arc = SunArc(almanac, {0.0, 0.0}, {0.0, 1.0});
    const double early = 34.0 / 60.0 / 360.0;  // days
    EXPECT_NEAR(arc.rise.value_or(0), 0.25 - early, 2e-6);
    EXPECT_NEAR(arc.transit.value_or(0), 0.5, 2e-6);
    EXPECT_NEAR(arc.set.value_or(0), 0.75 + early, 2e-6);
}

TEST(FirstSet, IsThatOfTheArc) {
    const ErfaAlmanac almanac;
    const SkySpan day = DayOf(2026, 2, 18);
    EXPECT_EQ(FirstSunset(almanac, kMecca, day), SunArc(almanac, kMecca, day).set);
    EXPECT_EQ(FirstMoonset(almanac, kMecca, day), MoonArc(almanac, kMecca, day).set);
    EXPECT_FALSE(FirstSunset(almanac, {69.65, 18.96}, DayOf(2026, 6, 21)));
}

TEST(IsMoonUp, ChangesAsItsUpperLimbSets) {
    const ErfaAlmanac almanac;
    const Date set = FirstMoonset(almanac, kMecca, DayOf(2026, 2, 18)).value();
    EXPECT_TRUE(IsMoonUp(almanac, kMecca, set - 1.0 / kSecondsPerDay));
    EXPECT_FALSE(IsMoonUp(almanac, kMecca, set + 1.0 / kSecondsPerDay));
}

TEST(SunUp, HasAPartForEachDay) {
    const Date midnight = DateSerial(2026, 2, 18);
    const auto up = SunUp(ErfaAlmanac(), kMecca, {midnight, midnight + 2.0});
    ASSERT_EQ(up.size(), 2U);
    ExpectTime(up[0].from, 3, 49, 29);
    ExpectTime(up[0].end, 15, 19, 56);
    EXPECT_EQ(std::floor(up[1].end), midnight + 1.0);
}

TEST(MoonUp, EndsWithTheSpanWhereTheMoonStaysUp) {
    const Date midnight = DateSerial(2026, 2, 18);
    const auto up = MoonUp(ErfaAlmanac(), kMecca, {midnight + 0.4, midnight + 0.5});
    ASSERT_EQ(up.size(), 1U);
    EXPECT_EQ(up[0].from, midnight + 0.4);
    EXPECT_EQ(up[0].end, midnight + 0.5);
    EXPECT_TRUE(MoonUp(ErfaAlmanac(), kMecca, {midnight, midnight + 0.1}).empty());
}

TEST(Twilight, BeginsAndEndsAtItsDepth) {
    const ErfaAlmanac almanac;
    const SkySpan day = DayOf(2026, 2, 18);
    const Twilight civil = TwilightOf(almanac, kMecca, day, kCivilTwilight);
    ExpectTime(civil.dawn, 3, 26, 53);
    ExpectTime(civil.dusk, 15, 42, 33);
    const Twilight nautical = TwilightOf(almanac, kMecca, day, kNauticalTwilight);
    ExpectTime(nautical.dawn, 3, 0, 47);
    ExpectTime(nautical.dusk, 16, 8, 39);
    const Twilight astronomical = TwilightOf(almanac, kMecca, day, kAstronomicalTwilight);
    ExpectTime(astronomical.dawn, 2, 34, 49);
    ExpectTime(astronomical.dusk, 16, 34, 37);
}

TEST(Twilight, IsAbsentWhereTheSunDoesNotSinkSoFar) {
    const Twilight summer =
        TwilightOf(ErfaAlmanac(), kLondon, DayOf(2026, 6, 21), kAstronomicalTwilight);
    EXPECT_FALSE(summer.dawn || summer.dusk);
}

TEST(Horizon, HasAltitudeBearingAndSize) {
    const Date evening = DateSerial(2026, 2, 18) + TimeSerial(15, 0, 0);
    const HorizonPlace sun = SunOver(ErfaAlmanac(), kMecca, evening);
    EXPECT_NEAR(sun.altitude, 3.6846, 0.002);
    EXPECT_NEAR(sun.bearing, 256.1370, 0.002);
    EXPECT_NEAR(sun.semidiameter, 0.26968, 0.0002);
    const HorizonPlace moon = MoonOver(ErfaAlmanac(), kMecca, evening);
    EXPECT_NEAR(moon.altitude, 16.6023, 0.005);
    EXPECT_NEAR(moon.bearing, 256.0644, 0.005);
    EXPECT_NEAR(moon.semidiameter, 0.26339, 0.0004);
}

}  // namespace
}  // namespace horavex
