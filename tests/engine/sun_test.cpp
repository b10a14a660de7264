#include "engine/sun.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "base/program_state.h"
#include "engine/angle.h"

namespace horavex {
namespace {

TEST(YearConstantsOf, Year2001HasTheWorkedNumbers) {
    const YearConstants constants = YearConstantsOf(2001);
    EXPECT_NEAR(constants.CosObliquity, 0.917483027, 5e-10);
    EXPECT_NEAR(constants.SinObliquity, 0.397774930, 5e-10);
    EXPECT_NEAR(constants.SunAnomalyRate, 0.0172019698, 5e-11);
    EXPECT_NEAR(constants.SunAnomalyEpoch, 6.226928592, 5e-10);
    EXPECT_NEAR(constants.SunPerigeeLongitude, 4.938542229, 5e-10);
    EXPECT_NEAR(constants.SiderealRate, 0.0657098224, 5e-11);
    EXPECT_NEAR(constants.SiderealEpoch, 6.648557472, 5e-10);
    EXPECT_NEAR(constants.SunCenterCoef1, 0.0334162225, 5e-11);
    EXPECT_NEAR(constants.SunCenterCoef2, 0.000348975583, 5e-13);
}

/// The day number shows in the obliquity, which falls linearly with it.
double DayNumberOf(std::int16_t year) {
    const YearConstants constants = YearConstantsOf(year);
    const double obliquity = RadToDeg(std::atan2(constants.SinObliquity, constants.CosObliquity));
    const double T = (DmsToDegrees(23, 27, 8.26) - obliquity) / DmsToDegrees(0, 0, 46.845);
    return T * 36525.0 + 0.5;
}

TEST(YearConstantsOf, DayNumberIsRoundedToTheNearestEven) {
    EXPECT_NEAR(DayNumberOf(2001), 36890, 1e-3);
    EXPECT_NEAR(DayNumberOf(2023), 44926, 1e-3);  // 44925.5
    EXPECT_NEAR(DayNumberOf(2024), 45291, 1e-3);  // 45290.75
    EXPECT_NEAR(DayNumberOf(2025), 45656, 1e-3);
    EXPECT_NEAR(DayNumberOf(2026), 46021, 1e-3);  // 46021.25
    EXPECT_NEAR(DayNumberOf(2027), 46386, 1e-3);  // 46386.5 goes to the even 46386
}

TEST(YearConstantsOf, CalendarsOwnDayNumberDropsTheQuarters) {
    const auto isSame = [](std::int16_t year) {
        return YearConstantsOf(year, YearStart::kCalendar) == YearConstantsOf(year);
    };
    EXPECT_TRUE(isSame(2025));
    EXPECT_TRUE(isSame(2026));
    EXPECT_TRUE(isSame(2027));
    EXPECT_FALSE(isSame(2028));
    EXPECT_FALSE(isSame(2023));
    EXPECT_FALSE(isSame(2101));  // a common 2100 lies before it
}

TEST(ComputeYearConstants, WritesThoseOfTheProgram) {
    ComputeYearConstants(2024);
    EXPECT_EQ(CurrentYearConstants, YearConstantsOf(2024));
    ResetProgramState();
    EXPECT_EQ(CurrentYearConstants, YearConstants());
}

TEST(SunAt, SeasonsTurnWhenTheyShould) {
    const YearConstants constants = YearConstantsOf(2001);
    EXPECT_NEAR(SunAt(constants, 79.5).sinDeclination, 0.0, 0.01);  // March equinox
    EXPECT_NEAR(SunAt(constants, 172.0).sinDeclination, constants.SinObliquity, 1e-4);
    EXPECT_NEAR(SunAt(constants, 355.5).sinDeclination, -constants.SinObliquity, 1e-4);
}

/// Apparent place of the sun at noon of Universal Time, by PyEphem 4.1.4.
struct AlmanacPlace {
    std::int16_t year;
    int day;                // 1 for the first of January
    double rightAscension;  // hours
    double declination;     // degrees
    double transit;         // hours of Universal Time, on the meridian of Greenwich
};

/// The largest differences from the almanac.
struct Deviation {
    double rightAscension = 0.0;  // seconds of time
    double declination = 0.0;     // minutes of arc
    double transit = 0.0;         // seconds of time
};

Deviation LargestDeviation(std::span<const AlmanacPlace> places,
                           YearStart start = YearStart::kRounded) {
    Deviation largest;
    for (const AlmanacPlace& place : places) {
        const YearConstants constants = YearConstantsOf(place.year, start);
        const double t = place.day + 0.5;
        const SunPosition sun = SunAt(constants, t);
        const double transit = FloatMod(
            sun.rightAscension - constants.SiderealRate * t - constants.SiderealEpoch, 24.0);
        const auto keep = [](double& value, double difference) {
            value = std::max(value, std::fabs(difference));
        };
        keep(largest.rightAscension, (sun.rightAscension - place.rightAscension) * 3600.0);
        keep(largest.declination, (RadToDeg(ArcSin(sun.sinDeclination)) - place.declination) * 60);
        keep(largest.transit, (transit - place.transit) * 3600.0);
    }
    return largest;
}

TEST(SunAt, AgreesWithTheAlmanacToSecondsAndPartsOfAMinuteOfArc) {
    constexpr AlmanacPlace kPlaces[] = {
        {2001, 5, 19.10114, -22.5700, 12.09140},   {2001, 80, 0.05694, 0.3701, 12.11897},
        {2001, 172, 6.01263, 23.4384, 12.02937},   {2001, 242, 10.59279, 8.8740, 12.00983},
        {2001, 307, 14.58027, -15.1682, 11.72622}, {2026, 42, 21.67406, -13.9272, 12.23626},
        {2026, 134, 3.42186, 18.6996, 11.93877},   {2026, 266, 12.02971, -0.1932, 11.87287},
        {2026, 356, 18.04675, -23.4359, 11.97601}, {2049, 105, 1.60466, 10.0241, 11.99876},
    };
    const Deviation largest = LargestDeviation(kPlaces);
    EXPECT_LT(largest.rightAscension, 6.0);
    EXPECT_LT(largest.declination, 0.4);
    EXPECT_LT(largest.transit, 5.0);
}

TEST(SunAt, RunsADayAheadInAYearWhoseDayNumberIsLate) {
    constexpr AlmanacPlace kPlaces[] = {{2024, 80, 0.02252, 0.1465, 12.12182},
                                        {2024, 183, 6.73524, 23.0512, 12.06640},
                                        {2024, 357, 18.08220, -23.4336, 11.97981}};
    const Deviation largest = LargestDeviation(kPlaces);
    EXPECT_NEAR(largest.rightAscension, 267.0, 3.0);
    EXPECT_NEAR(largest.declination, 23.7, 0.4);
    EXPECT_NEAR(largest.transit, 30.0, 2.0);
    const Deviation calendar = LargestDeviation(kPlaces, YearStart::kCalendar);
    EXPECT_LT(calendar.rightAscension, 6.0);
    EXPECT_LT(calendar.declination, 0.4);
    EXPECT_LT(calendar.transit, 5.0);
}

TEST(SunAt, RightAscensionGoesRoundTheDial) {
    const YearConstants constants = YearConstantsOf(2001);
    double former = SunAt(constants, 80.5).rightAscension;
    for (int day = 81; day < 440; ++day) {
        const double here = SunAt(constants, day + 0.5).rightAscension;
        EXPECT_GE(here, 0.0);
        EXPECT_LT(here, 24.0);
        EXPECT_NEAR(FloatMod(here - former, 24.0), 24.0 / 365.25, 0.01) << day;
        former = here;
    }
}

}  // namespace
}  // namespace horavex
