#include "geo/sun_bearing.h"

#include "engine/angle.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "engine/sun.h"
#include "store/settings_record.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

/// Cairo, zone 2, the year 2026.
struct SunBearingTest : testing::Test {
    SunBearingTest() {
        LatitudeRad = DegToRad(30.05);
        LongitudeWestRad = -DegToRad(31.25);
        Settings.TimeZone = ActiveSettings.TimeZone = 2.0;
    }

    static double DegreesAt(int month, int day, double hour) {
        const auto bearing = SunBearing(DateSerial(2026, month, day) + hour / 24.0);
        EXPECT_TRUE(bearing.has_value());
        return RadToDeg(bearing.value_or(0.0));
    }

    TestPlatform platform;
};

TEST_F(SunBearingTest, SunOfTransitStandsInTheSouth) {
    double gap = 0.0;
    const double transit = SolarTransit(YearConstantsOf(2026), PresentPlace(), 80, gap);
    EXPECT_NEAR(std::fabs(DegreesAt(3, 21, transit)), 180.0, 0.2);
    EXPECT_GT(DegreesAt(3, 21, transit - 0.1), 170.0) << "in the east before";
    EXPECT_LT(DegreesAt(3, 21, transit + 0.1), -170.0) << "in the west after";
}

TEST_F(SunBearingTest, SunRisesInTheEastAtAnEquinox) {
    EXPECT_NEAR(DegreesAt(3, 21, 6.2), 91.0, 1.5);
    EXPECT_NEAR(DegreesAt(3, 21, 17.9), -91.0, 2.0);
}

TEST_F(SunBearingTest, SummerSunRisesNorthOfEast) {
    EXPECT_NEAR(DegreesAt(6, 21, 5.0), 62.5, 1.0);
}

TEST_F(SunBearingTest, YearOfTheTableDoesNotMatter) {
    const double bearing = DegreesAt(3, 21, 9.0);
    ComputeYearConstants(2024);
    EXPECT_EQ(DegreesAt(3, 21, 9.0), bearing);
}

// The sun moves by four minutes of time from day to day, a twentieth of a degree of bearing at
// least.
TEST_F(SunBearingTest, SunIsThatOfTheDayItselfWhereTheYearsIs) {
    const Date moment = DateSerial(2028, 3, 21) + 9.0 / 24.0;
    const double nextDays = SunBearing(moment).value();
    RuledYear.rules.moments.start = YearStart::kCalendar;
    EXPECT_GT(std::fabs(RadToDeg(SunBearing(moment).value() - nextDays)), 0.05);
}

TEST_F(SunBearingTest, SunIsNowhereAtNight) {
    EXPECT_EQ(SunBearing(DateSerial(2026, 3, 21)), std::nullopt);
    EXPECT_EQ(SunBearing(DateSerial(2026, 3, 21) + 19.0 / 24.0), std::nullopt);
}

TEST_F(SunBearingTest, DaylightHourIsTakenOffTheClock) {
    const double plain = DegreesAt(6, 21, 9.0);
    ActiveSettings.DstEnabled = 1;
    ActiveSettings.DstStart = 100;
    ActiveSettings.DstEnd = 280;
    EXPECT_NEAR(DegreesAt(6, 21, 10.0), plain, 1e-9);
}

TEST_F(SunBearingTest, EditsThatAreNotAcceptedMoveNoSun) {
    const double plain = DegreesAt(6, 21, 9.0);
    Settings.TimeZone = 7.0;
    Settings.DstEnabled = 1;
    Settings.DstStart = 100;
    Settings.DstEnd = 280;
    EXPECT_EQ(DegreesAt(6, 21, 9.0), plain);
}

TEST_F(SunBearingTest, NoonSunOfTheSouthStandsInTheNorth) {
    LatitudeRad = DegToRad(-33.9);
    EXPECT_LT(std::fabs(DegreesAt(3, 21, 12.0)), 5.0);
}

}  // namespace
}  // namespace horavex
