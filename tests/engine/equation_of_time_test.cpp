#include "engine/equation_of_time.h"

namespace horavex {
namespace {

// Minutes, from the equation of time at noon of the given days in the Astronomical Almanac,
// rounded to a tenth; the series is good to a few seconds.
TEST(EquationOfTime, AgreesWithTheAlmanacToATenthOfAMinute) {
    EXPECT_NEAR(EquationOfTime(DateSerial(2001, 2, 11)), -14.2, 0.1);
    EXPECT_NEAR(EquationOfTime(DateSerial(2001, 4, 15)), 0.0, 0.15);
    EXPECT_NEAR(EquationOfTime(DateSerial(2001, 5, 14)), 3.7, 0.1);
    EXPECT_NEAR(EquationOfTime(DateSerial(2001, 7, 26)), -6.5, 0.1);
    EXPECT_NEAR(EquationOfTime(DateSerial(2001, 11, 3)), 16.4, 0.1);
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
