// The moon's phases of February and March 2026 by the U.S. Naval Observatory: new moon on the 17th
// at 12:01, then 24 February 12:27, 3 March 11:38, 11 March 9:38.

#include "sky/sky_day.h"

#include <gtest/gtest.h>

#include "linux/erfa_almanac.h"

namespace horavex {
namespace {

constexpr Observer kMecca{21.4225, 39.8262};

SkySpan DayOf(int month, int day) {
    const Date midnight = DateSerial(2026, month, day);
    return {midnight, midnight + 1.0};
}

MoonShape ShapeOn(int month, int day) {
    const SkySpan span = DayOf(month, day);
    return MoonShapeAt(ErfaAlmanac(), span, span.from + 0.5);
}

TEST(SkyDay, HasArcsAndTwilightsOfTheSpan) {
    const ErfaAlmanac almanac;
    const SkySpan span = DayOf(2, 18);
    const SkyDay day = SkyDayOf(almanac, kMecca, span);
    EXPECT_EQ(day.sun.rise, SunArc(almanac, kMecca, span).rise);
    EXPECT_EQ(day.moon.set, MoonArc(almanac, kMecca, span).set);
    EXPECT_EQ(day.twilights[0].dawn, TwilightOf(almanac, kMecca, span, 6.0).dawn);
    EXPECT_EQ(day.twilights[2].dusk, TwilightOf(almanac, kMecca, span, 18.0).dusk);
}

TEST(SkyMoment, HasBothBodiesAndTheMoonsLight) {
    const Date evening = DateSerial(2026, 2, 18) + TimeSerial(15, 0, 0);
    const SkyMoment moment = SkyMomentAt(ErfaAlmanac(), kMecca, evening);
    EXPECT_NEAR(moment.sun.altitude, 3.6846, 0.002);
    EXPECT_NEAR(moment.moon.bearing, 256.0644, 0.005);
    EXPECT_NEAR(moment.litPart, 0.0146, 0.0003);
    EXPECT_LT(moment.ahead, 20.0);
}

TEST(AgeOfMoon, CountsFromTheLastNewMoon) {
    const ErfaAlmanac almanac;
    const Date newMoon = DateSerial(2026, 2, 17) + TimeSerial(12, 1, 0);
    EXPECT_NEAR(AgeOfMoon(almanac, newMoon + 1.0), 1.0, 0.001);
    EXPECT_NEAR(AgeOfMoon(almanac, newMoon + 29.0), 29.0, 0.001);
    EXPECT_GT(AgeOfMoon(almanac, newMoon - 0.01), 29.0);
}

TEST(MoonShape, IsThePhaseOnItsDayAndWhatLiesBetweenOnTheOthers) {
    EXPECT_EQ(ShapeOn(2, 17), MoonShape::kNewMoon);
    EXPECT_EQ(ShapeOn(2, 18), MoonShape::kWaxingCrescent);
    EXPECT_EQ(ShapeOn(2, 24), MoonShape::kFirstQuarter);
    EXPECT_EQ(ShapeOn(2, 25), MoonShape::kWaxingGibbous);
    EXPECT_EQ(ShapeOn(3, 3), MoonShape::kFullMoon);
    EXPECT_EQ(ShapeOn(3, 4), MoonShape::kWaningGibbous);
    EXPECT_EQ(ShapeOn(3, 11), MoonShape::kLastQuarter);
    EXPECT_EQ(ShapeOn(3, 12), MoonShape::kWaningCrescent);
}

TEST(MoonShape, LastsUntilTheNextPhase) {
    const auto lateOn = [](int month, int day) {
        const SkySpan span = DayOf(month, day);
        return MoonShapeAt(ErfaAlmanac(), span, span.end);
    };
    EXPECT_EQ(lateOn(2, 23), MoonShape::kWaxingCrescent);
    EXPECT_EQ(lateOn(3, 2), MoonShape::kWaxingGibbous);
    EXPECT_EQ(lateOn(3, 10), MoonShape::kWaningGibbous);
    EXPECT_EQ(lateOn(3, 18), MoonShape::kWaningCrescent);
}

}  // namespace
}  // namespace horavex
