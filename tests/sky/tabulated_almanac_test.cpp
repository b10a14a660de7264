#include "sky/tabulated_almanac.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "linux/erfa_almanac.h"
#include "platform/even_almanac.h"
#include "sky/horizon.h"

namespace horavex {
namespace {

constexpr double kArcSeconds = 3600.0;  // in a degree

const Date kFirst = DateSerial(2024, 3, 9);

/// Seconds of arc from one angle to another.
double Off(double one, double other) {
    return std::abs(SignedDegrees(one - other)) * kArcSeconds;
}

double OffBy(const CelestialPlace& one, const CelestialPlace& other) {
    return std::max({Off(one.longitude, other.longitude), Off(one.latitude, other.latitude),
                     Off(one.rightAscension, other.rightAscension),
                     Off(one.declination, other.declination),
                     std::abs(one.distance / other.distance - 1.0) * 206265.0});
}

TEST(TabulatedAlmanac, IsWithinAHundredthOfASecondOfArcOfWhatItTabulates) {
    const ErfaAlmanac almanac;
    double sun = 0.0, moon = 0.0, turn = 0.0;
    for (int month = 1; month <= 12; ++month) {
        const Date from = DateSerial(2024, month, 3);
        const TabulatedAlmanac table(almanac, from, from + 4.0);
        for (Date instant = from; instant <= from + 4.0; instant += 0.0413) {
            sun = std::max(sun, OffBy(table.SunAt(instant), almanac.SunAt(instant)));
            moon = std::max(moon, OffBy(table.MoonAt(instant), almanac.MoonAt(instant)));
            turn = std::max(turn, Off(table.SiderealTime(instant), almanac.SiderealTime(instant)));
        }
    }
    EXPECT_LT(sun, 0.01);
    EXPECT_LT(moon, 0.01);
    EXPECT_LT(turn, 0.01);
}

TEST(TabulatedAlmanac, GoesThroughItsRowsAndBothEndsOfItsSpan) {
    const ErfaAlmanac almanac;
    const TabulatedAlmanac table(almanac, kFirst, kFirst + 0.5);
    for (const Date instant : {kFirst, kFirst + 0.25, kFirst + 0.5}) {
        EXPECT_LT(OffBy(table.MoonAt(instant), almanac.MoonAt(instant)), 1e-5);
        EXPECT_LT(Off(table.SiderealTime(instant), almanac.SiderealTime(instant)), 1e-5);
    }
}

TEST(TabulatedAlmanac, GoesOnWhereAnAngleTurnsOver) {
    EvenAlmanac even;
    even.moonStart = 350.0;
    even.moonPace = 13.0;
    const TabulatedAlmanac table(even, 0.0, 2.0);
    EXPECT_NEAR(table.MoonAt(0.51).rightAscension, 356.63, 1e-9);
    EXPECT_NEAR(table.MoonAt(0.79).rightAscension, 0.27, 1e-9);
    EXPECT_NEAR(table.MoonAt(0.79).longitude, 0.27, 1e-9);
}

TEST(TabulatedAlmanac, AsksTheOtherOneOutsideItsSpan) {
    EvenAlmanac even;
    even.sunPace = 1.0;
    const TabulatedAlmanac table(even, 10.0, 12.0);
    even.sunStart = 50.0;  // the table does not know of it
    EXPECT_NEAR(table.SunAt(11.0).longitude, 11.0, 1e-9);
    EXPECT_NEAR(table.SunAt(9.9).longitude, 59.9, 1e-9);
    EXPECT_NEAR(table.MoonAt(12.1).distance, even.moonDistance, 1e-9);
    EXPECT_NEAR(table.SiderealTime(12.25), 90.0, 1e-9);
}

}  // namespace
}  // namespace horavex
