#include "base/rounding.h"

#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <limits>
#include <random>

namespace horavex {
namespace {

constexpr double kTwoTo52 = 4503599627370496.0;

TEST(RoundHalfEven, PositiveTiesGoToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(0.5), 0.0);
    EXPECT_EQ(RoundHalfEven(1.5), 2.0);
    EXPECT_EQ(RoundHalfEven(2.5), 2.0);
    EXPECT_EQ(RoundHalfEven(3.5), 4.0);
}

TEST(RoundHalfEven, NegativeTiesGoToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(-0.5), 0.0);
    EXPECT_EQ(RoundHalfEven(-1.5), -2.0);
    EXPECT_EQ(RoundHalfEven(-2.5), -2.0);
    EXPECT_EQ(RoundHalfEven(-3.5), -4.0);
}

TEST(RoundHalfEven, TheFloatsBesideATieGoToTheirOwnSide) {
    for (const double tie : {0.5, 1.5, 2.5, -0.5, -1.5, -2.5, 32767.5, -32768.5}) {
        EXPECT_EQ(RoundHalfEven(std::nextafter(tie, -1e9)), std::floor(tie)) << tie;
        EXPECT_EQ(RoundHalfEven(std::nextafter(tie, 1e9)), std::ceil(tie)) << tie;
    }
}

TEST(RoundHalfEven, WholeNumbersStay) {
    for (const double whole : {0.0, 1.0, -1.0, 7.0, -8.0, 1e15, -1e15}) {
        EXPECT_EQ(RoundHalfEven(whole), whole);
    }
}

TEST(RoundHalfEven, TheLastTiesBelowTwoTo52GoToTheEvenNeighbour) {
    EXPECT_EQ(RoundHalfEven(kTwoTo52 - 0.5), kTwoTo52);
    EXPECT_EQ(RoundHalfEven(kTwoTo52 - 1.5), kTwoTo52 - 2.0);
    EXPECT_EQ(RoundHalfEven(-kTwoTo52 + 0.5), -kTwoTo52);
}

TEST(RoundHalfEven, FloatsTooLargeForAFractionStay) {
    for (const double large : {kTwoTo52, kTwoTo52 + 1.0, 2.0 * kTwoTo52 + 2.0, 1e22, 1e300}) {
        EXPECT_EQ(RoundHalfEven(large), large);
        EXPECT_EQ(RoundHalfEven(-large), -large);
    }
}

TEST(RoundHalfEven, AgreesWithTheProcessorsOwnRounding) {
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    std::mt19937_64 random(1);
    std::uniform_real_distribution<double> anywhere(-40000.0, 40000.0);
    for (int i = 0; i < 100000; ++i) {
        const double value = anywhere(random);
        ASSERT_EQ(RoundHalfEven(value), std::nearbyint(value)) << value;
        const double tie = std::floor(value) + 0.5;
        ASSERT_EQ(RoundHalfEven(tie), std::nearbyint(tie)) << tie;
    }
}

TEST(RoundToPlaces, TieOfTheProductGoesToEven) {
    // The float nearest to 2.675 lies below it, yet its product with 100 is 267.5 exactly.
    EXPECT_EQ(RoundToPlaces(2.675, 2), 2.68);
    EXPECT_EQ(RoundToPlaces(-2.675, 2), -2.68);
    EXPECT_EQ(RoundToPlaces(0.125, 2), 0.12);
    EXPECT_EQ(RoundToPlaces(0.375, 2), 0.38);
    EXPECT_EQ(RoundToPlaces(-0.125, 2), -0.12);
}

TEST(RoundToPlaces, NoPlacesRoundsToWholeNumbers) {
    EXPECT_EQ(RoundToPlaces(2.5, 0), 2.0);
    EXPECT_EQ(RoundToPlaces(-3.5, 0), -4.0);
}

TEST(RoundToPlaces, GivesTheFloatOfTheShortDecimal) {
    EXPECT_EQ(RoundToPlaces(23.4567894999, 6), 23.456789);
    EXPECT_EQ(RoundToPlaces(-23.4567895001, 6), -23.45679);
    EXPECT_EQ(RoundToPlaces(359.9999999, 6), 360.0);
    EXPECT_EQ(RoundToPlaces(0.1 + 0.2, 15), 0.3);
}

TEST(RoundToPlaces, ValueBelowHalfAPlaceVanishes) {
    EXPECT_EQ(RoundToPlaces(0.0000004, 6), 0.0);
    EXPECT_EQ(RoundToPlaces(-0.0000004, 6), 0.0);
}

TEST(RoundToPlaces, TwentyTwoPlacesScaleByAnExactPowerOfTen) {
    EXPECT_EQ(RoundToPlaces(1.5e-22, 22), 2e-22);
    EXPECT_EQ(RoundToPlaces(3.0, 22), 3.0);
}

TEST(NearestInt, RoundsWithTiesToTheEvenNumber) {
    EXPECT_EQ(NearestInt(2.4), 2);
    EXPECT_EQ(NearestInt(2.5), 2);
    EXPECT_EQ(NearestInt(3.5), 4);
    EXPECT_EQ(NearestInt(-0.6), -1);
}

TEST(NearestInt, EndsAtTheEndsOfItsRange) {
    EXPECT_EQ(NearestInt(1e300), std::numeric_limits<int>::max());
    EXPECT_EQ(NearestInt(-9.3e16), std::numeric_limits<int>::min());
    EXPECT_EQ(NearestInt(INFINITY), std::numeric_limits<int>::max());
    EXPECT_EQ(NearestInt(-INFINITY), std::numeric_limits<int>::min());
}

TEST(NearestInt, WhatIsNoNumberIsNothing) {
    EXPECT_EQ(NearestInt(NAN), 0);
}

}  // namespace
}  // namespace horavex
