#include "engine/equation_of_time.h"

namespace horavex {
namespace {

// Minutes at noon of Universal Time, by PyEphem 4.1.4; the series is good to three seconds.
TEST(EquationOfTime, AgreesWithTheAlmanacToThreeSeconds) {
    constexpr double kTolerance = 3.0 / 60.0;
    EXPECT_NEAR(EquationOfTime(DateSerial(1951, 2, 11)), -14.332, kTolerance);
    EXPECT_NEAR(EquationOfTime(DateSerial(2001, 2, 11)), -14.228, kTolerance);
    EXPECT_NEAR(EquationOfTime(DateSerial(2001, 5, 14)), 3.710, kTolerance);
    EXPECT_NEAR(EquationOfTime(DateSerial(2026, 7, 26)), -6.565, kTolerance);
    EXPECT_NEAR(EquationOfTime(DateSerial(2026, 11, 3)), 16.447, kTolerance);
    EXPECT_NEAR(EquationOfTime(DateSerial(2049, 12, 25)), -0.202, kTolerance);
}

TEST(EquationOfTime, IsAlwaysThatOfNoon) {
    const Date day = DateSerial(2026, 11, 21);
    EXPECT_EQ(EquationOfTime(day), EquationOfTime(day + 0.9));
    EXPECT_NE(EquationOfTime(day), EquationOfTime(day + 1.0));
}

// The epoch of the series is noon of the first of January 2000, where the mean elements stand
// alone; midnight before it and behind it would give a quarter of a minute more and less. Numbers
// by hand from the series.
TEST(EquationOfTime, HasTheWorkedNumbersOfNoon) {
    EXPECT_NEAR(EquationOfTime(DateSerial(2000, 1, 1)), -3.2981495896, 1e-9);
    EXPECT_NEAR(EquationOfTime(DateSerial(2001, 12, 25)), -0.1390239748, 1e-9);
    EXPECT_NEAR(EquationOfTime(DateSerial(2026, 11, 22)), 13.8903896489, 1e-9);
}

TEST(EquationOfTime, RunsSmoothlyOverTheYearsEnd) {
    const double before = EquationOfTime(DateSerial(2023, 12, 31));
    const double after = EquationOfTime(DateSerial(2024, 1, 1));
    EXPECT_NEAR(after - before, -0.49, 0.05);
    EXPECT_NEAR(EquationOfTime(DateSerial(2024, 3, 1)) - EquationOfTime(DateSerial(2024, 2, 29)),
                0.19, 0.05);
}

}  // namespace
}  // namespace horavex
