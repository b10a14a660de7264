#include "engine/angle.h"

#include <cmath>

#include "base/fault.h"

namespace horavex {
namespace {

TEST(DegToRad, TurnsByArctangentOfOne) {
    EXPECT_DOUBLE_EQ(DegToRad(45.0), std::atan(1.0));
    EXPECT_DOUBLE_EQ(DegToRad(-180.0), -Pi);
    EXPECT_DOUBLE_EQ(RadToDeg(Pi), 180.0);
}

TEST(DmsToDegrees, NegativeDegreesNegateTheWhole) {
    EXPECT_DOUBLE_EQ(DmsToDegrees(-23, 27, 0), -23.45);
}

TEST(DmsToDegrees, ZeroDegreesAreNeverNegative) {
    EXPECT_DOUBLE_EQ(DmsToDegrees(0, 27, 0), 0.45);
    EXPECT_DOUBLE_EQ(DmsToDegrees(-0, 27, 0), 0.45);
    EXPECT_DOUBLE_EQ(DmsToDegrees(0, -27, 0), -0.45);
}

TEST(HmsToHours, AddsTheTermsWhateverTheirSigns) {
    EXPECT_DOUBLE_EQ(HmsToHours(6, 30, 36.0), 6.51);
    EXPECT_DOUBLE_EQ(HmsToHours(-6, 30, 0.0), -5.5);
}

TEST(FloatMod, NegativeValueStaysInRange) {
    EXPECT_DOUBLE_EQ(FloatMod(-10, 360), 350);
    EXPECT_DOUBLE_EQ(FloatMod(730, 360), 10);
    EXPECT_DOUBLE_EQ(FloatMod(360, 360), 0);
    EXPECT_DOUBLE_EQ(Normalize360(-10), 350);
}

TEST(ArcCos, FollowsTheArctangentForm) {
    EXPECT_NEAR(ArcCos(0.5), Pi / 3, 1e-15);
    EXPECT_NEAR(ArcCos(-0.5), 2 * Pi / 3, 1e-15);
    EXPECT_NEAR(ArcSin(0.5), Pi / 6, 1e-15);
    EXPECT_NEAR(ArcSin(-0.5), -Pi / 6, 1e-15);
}

TEST(ArcCos, EdgeOfTheDomainIsAFault) {
    EXPECT_THROW(ArcCos(1.0), DivisionByZeroFault);
    EXPECT_THROW(ArcCos(-1.0), DivisionByZeroFault);
    EXPECT_THROW(ArcSin(1.0), DivisionByZeroFault);
    EXPECT_THROW(ArcSin(-1.0), DivisionByZeroFault);
}

TEST(ArcCos, OutsideTheDomainIsAFault) {
    EXPECT_THROW(ArcCos(1.5), SquareRootFault);
    EXPECT_THROW(ArcSin(-1.5), SquareRootFault);
}

TEST(Atan2Checked, TellsTheQuadrants) {
    EXPECT_DOUBLE_EQ(Atan2Checked(0, -1), Pi);
    EXPECT_DOUBLE_EQ(Atan2Checked(-1, 0), -Pi / 2);
    EXPECT_DOUBLE_EQ(Atan2Checked(1, 0), Pi / 2);
    EXPECT_DOUBLE_EQ(Atan2Checked(0, 1), 0);
    EXPECT_DOUBLE_EQ(Atan2Checked(1, 1), Pi / 4);
    EXPECT_DOUBLE_EQ(Atan2Checked(1, -1), 3 * Pi / 4);
    EXPECT_DOUBLE_EQ(Atan2Checked(-1, 1), -Pi / 4);
    EXPECT_DOUBLE_EQ(Atan2Checked(-1, -1), -3 * Pi / 4);
}

TEST(Atan2Checked, TwoZerosCallTheHandler) {
    struct Called {};
    SetUndefinedAngleHandler([] { throw Called(); });
    EXPECT_THROW(Atan2Checked(0, 0), Called);
    SetUndefinedAngleHandler(nullptr);
    EXPECT_THROW(Atan2Checked(0, 0), DivisionByZeroFault);
}

TEST(SplitDegrees, SixtyMinutesAreNotCarriedOn) {
    EXPECT_EQ(SplitDegrees(59.9999).whole, 59);
    EXPECT_EQ(SplitDegrees(59.9999).minutes, 60);
    EXPECT_EQ(SplitDegrees(12.9999).minutes, 60);
    EXPECT_EQ(SplitDegrees(58.999).whole, 58);
    EXPECT_EQ(SplitDegrees(58.999).minutes, 60);
}

TEST(SplitDegrees, SignStaysOnTheWholeDegrees) {
    EXPECT_EQ(SplitDegrees(-30.5).whole, -30);
    EXPECT_EQ(SplitDegrees(-30.5).minutes, 30);
    EXPECT_EQ(SplitDegrees(-0.5).whole, 0);
    EXPECT_EQ(SplitDegrees(-0.5).minutes, 30);
}

TEST(SplitDegrees, TiesOfAMinuteGoToTheEvenOne) {
    EXPECT_EQ(SplitDegrees(1.0 / 128).minutes, 0);  // 0.46875
    EXPECT_EQ(SplitDegrees(0.375 / 3).minutes, 8);  // 7.5
    EXPECT_EQ(SplitDegrees(0.375).minutes, 22);     // 22.5
}

TEST(SplitDegrees, WholeDegreesBeyondSixteenBitsAreAFault) {
    EXPECT_THROW(SplitDegrees(32768.0), OverflowFault);
}

TEST(StoredCoord, IsAHundredthOfADegree) {
    EXPECT_DOUBLE_EQ(StoredCoord(-2), -0.02);
    EXPECT_DOUBLE_EQ(StoredCoord(3005), 30.05);
    EXPECT_EQ(StoredCoord(0), 0.0);
    EXPECT_FALSE(std::signbit(StoredCoord(0)));
}

}  // namespace
}  // namespace horavex
