#include "engine/sun.h"

#include <cmath>

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
