#include "sky/day_sky.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numbers>

#include "platform/even_almanac.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

/// A sun that stands over the meridian of Greenwich at noon of every day, and a moon a quarter of
/// a turn behind it, far away.
class DaySkyTest : public testing::Test {
protected:
    DaySkyTest() {
        almanac.start = midnight;
        almanac.sunStart = 180.0;
        almanac.moonStart = 270.0;
        almanac.moonDistance = 1e9;
        almanac.sunDistance = 1e12;
    }

    SkyWatch Watch(double latitude, double hours = 0.0) const {
        SettingsRecord record;
        record.TimeZone = hours;
        return {almanac, {latitude, 0.0}, {"", record}};
    }
    DaySky At(double dayPart, double latitude, double hours = 0.0) const {
        const SkyWatch watch = Watch(latitude, hours);
        return DaySkyAt(watch, midnight + dayPart, SunArcOfDay(watch, midnight));
    }

    const Date midnight = DateSerial(2026, 3, 20);
    TestPlatform platform;
    EvenAlmanac almanac;
};

TEST_F(DaySkyTest, ArcGoesFromMidnightToMidnightOverTheZenithOfTheEquator) {
    const std::vector<double> arc = SunArcOfDay(Watch(0.0), midnight);
    EXPECT_NEAR(arc.front(), -90.0, 0.01);
    EXPECT_NEAR(AltitudeOnArc(arc, 0.25), 0.0, 0.01);
    EXPECT_NEAR(AltitudeOnArc(arc, 0.5), 90.0, 0.01);
    EXPECT_NEAR(AltitudeOnArc(arc, 0.375), 45.0, 0.01);
    EXPECT_NEAR(arc.back(), -90.0, 0.01);
}

TEST_F(DaySkyTest, ArcIsThatOfTheClockOfThePlace) {
    const std::vector<double> arc = SunArcOfDay(Watch(0.0, 6.0), midnight);
    EXPECT_NEAR(AltitudeOnArc(arc, 0.75), 90.0, 0.01);
}

TEST_F(DaySkyTest, OutsideOfADayItsArcEndsAndAnEmptyOneIsLevel) {
    const std::vector<double> arc = {-10.0, 20.0, -30.0};
    EXPECT_EQ(AltitudeOnArc(arc, -0.5), -10.0);
    EXPECT_EQ(AltitudeOnArc(arc, 1.5), -30.0);
    EXPECT_EQ(AltitudeOnArc(arc, 0.25), 5.0);
    EXPECT_EQ(AltitudeOnArc({}, 0.5), 0.0);
}

TEST_F(DaySkyTest, MoonAQuarterBehindTheSunRisesAtNoonHalfLitTowardIt) {
    const DaySky noon = At(0.5, 0.0);
    EXPECT_NEAR(noon.sunAltitude, 90.0, 0.01);
    EXPECT_NEAR(noon.moonAltitude, 0.0, 0.01);
    EXPECT_NEAR(noon.moonPastMeridian, -90.0, 0.01);
    EXPECT_NEAR(noon.litPart, 0.5, 0.01);
    EXPECT_NEAR(noon.brightLimb, 0.0, 0.1);  // up, to the sun in the zenith
}

TEST_F(DaySkyTest, SunPassesTheMeridianAtTheNoonOfThePlaceAndNotAtTwelveOfItsClock) {
    EXPECT_NEAR(At(14.0 / 24.0, 0.0, 2.0).sunPastMeridian, 0.0, 0.01);
    EXPECT_NEAR(At(14.0 / 24.0, 0.0, 2.0).moonPastMeridian, -90.0, 0.01);
    EXPECT_NEAR(At(12.0 / 24.0, 0.0, 2.0).sunPastMeridian, -30.0, 0.01);
    EXPECT_NEAR(At(20.0 / 24.0, 0.0, 2.0).sunPastMeridian, 90.0, 0.01);
}

// In the evening it stands over the south as northern countries see it, the sun at its right.
TEST_F(DaySkyTest, LitEdgePointsToTheRightInTheNorthAndToTheLeftInTheSouth) {
    EXPECT_NEAR(At(0.75, 40.0).brightLimb, 90.0, 0.1);
    EXPECT_NEAR(At(0.75, -40.0).brightLimb, -90.0, 0.1);
}

}  // namespace
}  // namespace horavex
