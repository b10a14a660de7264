#include "moon/moon_angle.h"

#include <cmath>

#include "base/fault.h"

namespace horavex {
namespace {

void ExpectParts(const ThreeParts& parts, int whole, int minutes, double seconds) {
    EXPECT_EQ(parts.whole, whole);
    EXPECT_EQ(parts.minutes, minutes);
    EXPECT_DOUBLE_EQ(parts.seconds, seconds);
}

TEST(MoonAngle, PartsMakeOneNumberOfSixPlaces) {
    EXPECT_EQ(ClockToDecimal(18, 31, 27.0), 18.524167);
    EXPECT_EQ(ClockToDecimal(-30, -15, -0.0), -30.25);
    EXPECT_EQ(ClockToDecimal(-1, 30, 0.0), -0.5);
}

TEST(MoonAngle, NumberComesApartWithItsSignOnEachPart) {
    ExpectParts(DecimalToClock(18.524167), 18, 31, 27.0012);
    ExpectParts(DecimalToClock(-30.25), -30, -15, 0.0);
    ExpectParts(DecimalToClock(-0.51), 0, -30, -36.0);
    ExpectParts(DecimalToClock(0.0), 0, 0, 0.0);
}

TEST(MoonAngle, IntegerPartIsReadFromTheText) {
    EXPECT_EQ(TextIntegerPart(0.999), 0);
    EXPECT_EQ(TextIntegerPart(-0.999), 0);
    EXPECT_EQ(TextIntegerPart(1.0), 1);
    EXPECT_EQ(TextIntegerPart(10.0), 10);
    EXPECT_EQ(TextIntegerPart(359.999999), 359);
    EXPECT_EQ(TextIntegerPart(-12.75), -12);
}

TEST(MoonAngle, IntegerPartOfAValueThatPrintsRoundedUpIsWrong) {
    EXPECT_EQ(TextIntegerPart(std::nextafter(10.0, 0.0)), 1);
}

TEST(MoonAngle, IntegerPartOfANegativePowerOfTenIsWrong) {
    EXPECT_EQ(TextIntegerPart(-1.0), 0);
    EXPECT_EQ(TextIntegerPart(-10.0), -1);
}

TEST(MoonAngle, IntegerPartBeyond16BitsIsAFault) {
    EXPECT_EQ(TextIntegerPart(32767.5), 32767);
    EXPECT_THROW(TextIntegerPart(32768.5), OverflowFault);
}

TEST(MoonAngle, RangeWrapsFromBothSides) {
    EXPECT_EQ(WrapRange(725.0, 0.0, 360.0), 5.0);
    EXPECT_EQ(WrapRange(-5.0, 0.0, 360.0), 355.0);
    EXPECT_EQ(WrapRange(360.0, 0.0, 360.0), 360.0);
    EXPECT_EQ(WrapHours(24.0), 24.0);
    EXPECT_EQ(WrapHours(24.5), 0.5);
}

TEST(MoonAngle, RangeWrapsWhatIsFarOutsideAtOnce) {
    EXPECT_EQ(WrapHours(24e15), 0.0);
    EXPECT_GE(WrapHours(-1e300), 0.0);
    EXPECT_FALSE(WrapHours(INFINITY) == WrapHours(INFINITY)) << "no hour at all";
}

// From the book: 17.25 February 1985 is 2446113.75.
TEST(MoonAngle, JulianDays) {
    EXPECT_EQ(CivilToJulian(1985, 2, 17.25), 2446113.75);
    EXPECT_EQ(CivilToJulian(2000, 1, 1.5), 2451545.0);
    EXPECT_EQ(CivilToJulian(1582, 10, 4.0), 2299159.5);
    EXPECT_EQ(CivilToJulian(1582, 10, 15.0), 2299160.5);
    EXPECT_EQ(CivilToJulian(-4712, 1, 1.5), 0.0);
}

TEST(MoonAngle, DaysCountFromTheEveOf1990) {
    EXPECT_EQ(DaysSince1990(1, 1, 1990), 1.0);
    EXPECT_EQ(DaysSince1990(31, 12, 1989), 0.0);
    EXPECT_EQ(DaysSince1990(1, 3, 2004), 5174.0);
}

// From the book: 22 April 1980, 14:36:51.67 of Universal Time is sidereal time 4:40:05.23.
TEST(MoonAngle, SiderealTimeOfADay) {
    const CivilDate day{1980, 4, 22};
    ExpectParts(GreenwichSiderealAtMidnight(day), 14, 0, 49.51);
    const ThreeParts universal = SiderealToUniversal(day, {4, 40, 5.23});
    EXPECT_EQ(universal.whole, 14);
    EXPECT_EQ(universal.minutes, 36);
    EXPECT_NEAR(universal.seconds, 51.67, 0.02);
}

// From the book: local 0:24:05.23 at 64 degrees west is 4:40:05.23 at Greenwich.
TEST(MoonAngle, SiderealTimeOfAPlace) {
    const ThreeParts greenwich = LocalToGreenwichSidereal({0, 24, 5.23}, -64.0);
    EXPECT_EQ(greenwich.whole, 4);
    EXPECT_EQ(greenwich.minutes, 40);
    EXPECT_NEAR(greenwich.seconds, 5.23, 0.01);
}

TEST(MoonAngle, QuadrantsOfPoints) {
    EXPECT_EQ(QuadrantOfXY(1.0, 1.0), 1);
    EXPECT_EQ(QuadrantOfXY(-1.0, 1.0), 2);
    EXPECT_EQ(QuadrantOfXY(-1.0, -1.0), 3);
    EXPECT_EQ(QuadrantOfXY(1.0, -1.0), 4);
    EXPECT_EQ(QuadrantOfXY(0.0, 1.0), 0);
    EXPECT_EQ(QuadrantOfXY(1.0, 0.0), 0);
}

TEST(MoonAngle, QuadrantsOfAngles) {
    EXPECT_EQ(QuadrantOfAngle(45.0), 1);
    EXPECT_EQ(QuadrantOfAngle(135.0), 2);
    EXPECT_EQ(QuadrantOfAngle(200.0), 3);
    EXPECT_EQ(QuadrantOfAngle(-100.0), 3);
    EXPECT_EQ(QuadrantOfAngle(300.0), 4);
    EXPECT_EQ(QuadrantOfAngle(-10.0), 4);
    for (const double axis : {-180.0, -90.0, 0.0, 90.0, 180.0, 270.0, 360.0}) {
        EXPECT_EQ(QuadrantOfAngle(axis), 0) << axis;
    }
}

TEST(MoonAngle, AngleGoesToTheQuadrantOfItsPoint) {
    EXPECT_NEAR(AngleInQuadrant(1.0, 1.0), 45.0, 1e-5);
    EXPECT_NEAR(AngleInQuadrant(1.0, -1.0), 135.0, 1e-5);
    EXPECT_NEAR(AngleInQuadrant(-1.0, -1.0), -135.0, 1e-5);
    EXPECT_NEAR(AngleInQuadrant(-1.0, 1.0), -45.0, 1e-5);
    EXPECT_EQ(AngleInQuadrant(0.0, -1.0), 0.0) << "on an axis it is not moved";
}

TEST(MoonAngle, AngleOfAPointWithoutAnXIsAFault) {
    EXPECT_THROW(AngleInQuadrant(1.0, 0.0), DivisionByZeroFault);
}

}  // namespace
}  // namespace horavex
