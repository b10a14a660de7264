#include "moon/lunation.h"

#include <cmath>
#include <vector>

#include "base/program_state.h"

namespace horavex {
namespace {

constexpr double kPi = 3.14159265358979;

struct LunationTest : testing::Test {
    LunationTest() { ResetProgramState(); }
};

TEST_F(LunationTest, FirstReductionOfARunOfZeroGivesZero) {
    EXPECT_EQ(ReduceAngle(0.0), 0.0);
    EXPECT_EQ(ReduceAngle(360.0), 0.0);
}

TEST_F(LunationTest, ReductionOfZeroAndOfAFullTurnGivesTheAnswerBefore) {
    ReduceAngle(123.5);
    EXPECT_EQ(ReduceAngle(0.0), 123.5);
    EXPECT_EQ(ReduceAngle(360.0), 123.5);
    ReduceAngle(-10.0);
    EXPECT_EQ(ReduceAngle(0.0), -10.0);
    ReduceAngle(-720.0);
    EXPECT_EQ(ReduceAngle(360.0), 360.0);
}

TEST_F(LunationTest, NegativeAngleOfLessThanATurnStays) {
    EXPECT_EQ(ReduceAngle(-10.0), -10.0);
    EXPECT_EQ(ReduceAngle(-359.75), -359.75);
}

TEST_F(LunationTest, NegativeAngleOfATurnOrMoreComesUp) {
    EXPECT_EQ(ReduceAngle(-370.0), 350.0);
    EXPECT_EQ(ReduceAngle(-1081.5), 358.5);
}

TEST_F(LunationTest, NegativeMultipleOfATurnGives360) {
    EXPECT_EQ(ReduceAngle(-360.0), 360.0);
    EXPECT_EQ(ReduceAngle(-720.0), 360.0);
}

TEST_F(LunationTest, PositiveAngleComesDown) {
    EXPECT_EQ(ReduceAngle(359.5), 359.5);
    EXPECT_EQ(ReduceAngle(370.0), 10.0);
    EXPECT_EQ(ReduceAngle(360000.5), 0.5);
}

TEST_F(LunationTest, PositiveMultipleAboveATurnRunsAThousandTurnsOut) {
    EXPECT_EQ(ReduceAngle(720.0), 720.0 - 360000.0);
    EXPECT_EQ(ReduceAngle(0.0), 720.0 - 360000.0) << "that answer is kept too";
}

TEST_F(LunationTest, BeyondAThousandTurnsNothingIsReduced) {
    EXPECT_EQ(ReduceAngle(400000.0), 40000.0);
    EXPECT_EQ(ReduceAngle(-400000.0), -400000.0);
}

/// Turns taken off or put on one by one.
double TurnedOneByOne(double degrees) {
    const double sign = degrees < 0.0 ? -1.0 : 1.0;
    for (int turns = 1; turns <= 1000; ++turns) {
        const double angle = degrees - sign * turns * 360.0;
        if (angle > 0.0 && (angle < 360.0 || (sign < 0.0 && angle == 360.0))) {
            return angle;
        }
    }
    return sign < 0.0 ? degrees : degrees - 360000.0;
}

TEST_F(LunationTest, LeastNumberOfTurnsCounts) {
    for (int turns = 1; turns <= 1003; ++turns) {
        const double whole = turns * 360.0;
        for (const double degrees :
             {std::nextafter(whole, 0.0), whole + 1e-9, whole + 123.456, whole + 359.999999,
              std::nextafter(whole + 360.0, 0.0), std::nextafter(whole, 1e9)}) {
            EXPECT_EQ(ReduceAngle(-degrees), degrees < 360.0 ? -degrees : TurnedOneByOne(-degrees));
            EXPECT_EQ(ReduceAngle(degrees), degrees < 360.0 ? degrees : TurnedOneByOne(degrees));
        }
    }
}

TEST_F(LunationTest, EstimateCountsFromTheYear2000) {
    EXPECT_EQ(YearFraction(2001, 6), 2001.5);
    EXPECT_EQ(LunationEstimate(2000.0), 0.0);
    EXPECT_DOUBLE_EQ(LunationEstimate(2001.5), 18.55275);
    EXPECT_DOUBLE_EQ(CenturiesOfEstimate(1236.85), 1.0);
}

TEST_F(LunationTest, Of2001FollowWithoutAGap) {
    for (std::int16_t i = 0; i <= 12; ++i) {
        EXPECT_EQ(LunationOf(2001, i, 0.0).k, 12.0 + i);
        EXPECT_EQ(LunationOf(2001, i, 0.75).k, 12.75 + i);
    }
}

TEST_F(LunationTest, SomeYearsLeaveOneOut) {
    std::vector<int> years;
    for (std::int16_t year = 1990; year <= 2010; ++year) {
        for (std::int16_t i = 1; i <= 12; ++i) {
            const double step = LunationOf(year, i, 0.0).k -
                                LunationOf(year, static_cast<std::int16_t>(i - 1), 0.0).k;
            ASSERT_TRUE(step == 1.0 || step == 2.0) << year << " " << i;
            if (step == 2.0) {
                years.push_back(year);
            }
        }
    }
    EXPECT_THAT(years, testing::ElementsAre(1991, 1994, 1997, 1999, 2002, 2005, 2008, 2010));
}

TEST_F(LunationTest, CenturiesComeFromTheEstimate) {
    const Lunation lunation = LunationOf(2001, 0, 0.5);
    EXPECT_DOUBLE_EQ(lunation.T, 12.3685 / 1236.85);
    EXPECT_NE(lunation.T, 12.5 / 1236.85);
}

// The book's worked example of the new moon of February 1977: k = -283, T = -0.22881.
TEST_F(LunationTest, ElementsOfFebruary1977) {
    constexpr double k = -283.0;
    constexpr double T = -0.22881;
    const auto degrees = [](double radians) { return radians * 180.0 / kPi; };
    EXPECT_NEAR(MeanPhaseDay(k, T), 2443192.94102, 5e-5);
    EXPECT_NEAR(EccentricityFactor(T), 1.0005753, 5e-8);
    EXPECT_NEAR(degrees(SunMeanAnomaly(k, T)), 45.7375, 5e-4);
    EXPECT_NEAR(degrees(MoonMeanAnomaly(k, T)), 95.3722, 5e-4);
    EXPECT_NEAR(degrees(MoonLatitudeArgument(k, T)), 120.9584, 5e-4);
    EXPECT_NEAR(degrees(NodeLongitude(k, T)), 207.3176, 5e-4);
}

// A thousand years away every power of T counts. The sums are made by hand from the coefficients.
TEST_F(LunationTest, ElementsHaveTheirTermsOfHigherPower) {
    constexpr double T = 10.0;
    const auto degrees = [](double radians) { return radians * 180.0 / kPi; };
    EXPECT_NEAR(MeanPhaseDay(0.0, T), 2451550.1108773, 2e-9);
    EXPECT_NEAR(EccentricityFactor(T), 0.9741, 1e-12);
    EXPECT_NEAR(degrees(SunMeanAnomaly(0.0, T)), 2.55111, 1e-9);
    EXPECT_NEAR(degrees(MoonMeanAnomaly(0.0, T)), 202.65049, 1e-9);
    EXPECT_NEAR(degrees(MoonLatitudeArgument(0.0, T)), 160.54523, 1e-9);
    EXPECT_NEAR(degrees(NodeLongitude(0.0, T)), 124.98366, 1e-9);
}

TEST_F(LunationTest, EveryPlanetaryArgumentHasTheSquaredTerm) {
    for (int n = 1; n <= kPlanetaryArguments; ++n) {
        const double drift = PlanetaryArgument(n, 0.0, 1.0) - PlanetaryArgument(n, 0.0, 0.0);
        EXPECT_NEAR(drift * 180.0 / kPi, -0.009173, 1e-9) << n;
    }
}

TEST_F(LunationTest, PlanetaryArgumentsHaveBaseAndRate) {
    const auto degrees = [](int n, double k) { return PlanetaryArgument(n, k, 0.0) * 180.0 / kPi; };
    EXPECT_NEAR(degrees(1, 0.0), 299.77, 1e-9);
    EXPECT_NEAR(degrees(1, 1.0), 299.877408, 1e-9);
    EXPECT_NEAR(degrees(9, 1.0), 61.781239, 1e-9);
    EXPECT_NEAR(degrees(14, 10.0), 7.47518, 1e-9);
}

}  // namespace
}  // namespace horavex
