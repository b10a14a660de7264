#include "geo/distance.h"

#include <cmath>

#include "base/fault.h"

namespace horavex {
namespace {

struct DistanceTest : testing::Test {
    static double Between(double latA, double lonA, double latB, double lonB) {
        return DistanceKilometres({latA, lonA, latB, lonB});
    }
};

constexpr DistancePoints kParisWashington = {48.8366, 2.3372, 38.9213, -77.0656};

TEST_F(DistanceTest, EqualPointsAreNothingApart) {
    EXPECT_EQ(Between(30.05, 31.25, 30.05, 31.25), 0.0);
    EXPECT_EQ(Between(0.0, 0.0, 0.0, 0.0), 0.0);
}

TEST_F(DistanceTest, DegreeOfTheEquator) {
    EXPECT_NEAR(Between(0.0, 0.0, 0.0, 1.0), 111.3, 0.05);
    EXPECT_NEAR(Between(0.0, 0.0, 0.0, 1.0), 6378.14 * 3.14159265358979 / 180.0, 1e-8);
}

TEST_F(DistanceTest, HalvesAreRadians) {
    const DistancePoints points = {30.0, 60.0, -10.0, 20.0};
    EXPECT_NEAR(HalfSumLat(points), 10.0 * 3.14159265358979 / 180.0, 1e-15);
    EXPECT_NEAR(HalfDiffLat(points), 20.0 * 3.14159265358979 / 180.0, 1e-15);
    EXPECT_NEAR(HalfDiffLon(points), 20.0 * 3.14159265358979 / 180.0, 1e-15);
}

TEST_F(DistanceTest, SumsCompleteEachOther) {
    const double S = AndoyerS(kParisWashington);
    EXPECT_NEAR(S + AndoyerC(kParisWashington), 1.0, 1e-15);
    EXPECT_NEAR(S, 0.216427, 1e-6);
}

// Paris to Washington, observatories: the textbook form gives 6181.63 km.
TEST_F(DistanceTest, FlatteningTermsAreProducts) {
    const DistancePoints points = kParisWashington;
    const double distance = DistanceKilometres(points);
    const double S = AndoyerS(points);
    const double C = AndoyerC(points);
    const double w = std::atan(std::sqrt(S / C));
    const double R = std::sqrt(S * C) / w;
    const double D = 2.0 * w * 6378.14;
    const double f = 0.0033528131778969143;
    const double north = std::pow(std::sin(HalfSumLat(points)) * std::cos(HalfDiffLat(points)), 2);
    const double south = std::pow(std::cos(HalfSumLat(points)) * std::sin(HalfDiffLat(points)), 2);
    const double textbook = D * (1.0 + f * (3.0 * R - 1.0) / (2.0 * C) * north -
                                 f * (3.0 * R + 1.0) / (2.0 * S) * south);
    EXPECT_NEAR(textbook, 6181.63, 0.01);
    EXPECT_NEAR(
        distance,
        D * (1.0 + f * (3.0 * R - 1.0) * C / 2.0 * north - f * (3.0 * R + 1.0) * S / 2.0 * south),
        1e-9);
    EXPECT_GT(std::fabs(distance - textbook), 1.0);
    EXPECT_LT(std::fabs(distance / textbook - 1.0), 1.0 / 300.0);
}

TEST_F(DistanceTest, OrderOfThePointsDoesNotMatter) {
    EXPECT_EQ(Between(30.0, 31.0, 21.0, 39.0), Between(21.0, 39.0, 30.0, 31.0));
}

TEST_F(DistanceTest, BearingTurnsClockwiseFromNorth) {
    EXPECT_DOUBLE_EQ(BearingDegrees({0.0, 0.0, 1.0, 0.0}), 0.0);
    EXPECT_NEAR(BearingDegrees({0.0, 0.0, 0.0, 1.0}), 90.0, 1e-9);
    EXPECT_NEAR(BearingDegrees({0.0, 0.0, -1.0, 0.0}), 180.0, 1e-9);
    EXPECT_NEAR(BearingDegrees({0.0, 0.0, 0.0, -1.0}), 270.0, 1e-9);
    EXPECT_NEAR(BearingDegrees({43.65, -79.38, 21.4225, 39.8262}), 54.56, 0.05) << "Toronto";
}

TEST_F(DistanceTest, OppositePointsOnTheEquatorDivideByZero) {
    EXPECT_THROW(AndoyerKilometres(1.0, 0.0, 0.0, 0.0), DivisionByZeroFault);
}

TEST_F(DistanceTest, UnitsHaveTheirFactors) {
    EXPECT_EQ(InUnit(1.609344, DistanceUnit::kKilometres), 1.609344);
    EXPECT_DOUBLE_EQ(InUnit(1.609344, DistanceUnit::kMiles), 1.0);
    EXPECT_DOUBLE_EQ(InUnit(1.609344, DistanceUnit::kNauticalMiles), 0.8689927583936801);
    EXPECT_NE(0.8689927583936801, 1609.344 / 1852.0);
}

TEST_F(DistanceTest, UnitsHaveEnglishNames) {
    EXPECT_EQ(UnitName(DistanceUnit::kKilometres), "Kilometers");
    EXPECT_EQ(UnitName(DistanceUnit::kMiles), "Miles");
    EXPECT_EQ(UnitName(DistanceUnit::kNauticalMiles), "Nautical Miles");
}

TEST_F(DistanceTest, CoordinateIsReadThroughFifteenDigits) {
    EXPECT_EQ(ReadCoordinate({"30", "15", "36"}), 30.26);
    EXPECT_EQ(ReadCoordinate({"-30", "-15", "-36"}), -30.26);
    EXPECT_EQ(ReadCoordinate({"0", "20", "0"}), 0.333333333333333);
    EXPECT_NE(ReadCoordinate({"0", "20", "0"}), 20.0 / 60.0);
    EXPECT_EQ(ReadCoordinate({"0", "0", "1"}), 2.77777777777778e-4);
}

TEST_F(DistanceTest, CoordinateThatIsNoNumberIsAFault) {
    EXPECT_THROW(ReadCoordinate({"30", "x", "0"}), TypeMismatchFault);
}

TEST_F(DistanceTest, ParsesWhatThePickerSays) {
    const CoordinateFields latitude = ParseCoordinates("Latitude: 30 degrees, 3 minutes North");
    EXPECT_EQ(latitude.degrees, 30);
    EXPECT_EQ(latitude.minutes, 3);
    EXPECT_EQ(latitude.seconds, 0);
    EXPECT_EQ(latitude.hemisphere, "north");
    EXPECT_EQ(ParseCoordinates("Longitude: 74 degrees, 0 minutes West").hemisphere, "west");
    EXPECT_EQ(ParseCoordinates("Latitude: 6 degrees, 12 minutes South").hemisphere, "south");
    EXPECT_EQ(ParseCoordinates("Longitude: 31 degrees, 15 minutes East").hemisphere, "east");
}

TEST_F(DistanceTest, ParsesSecondsToo) {
    const CoordinateFields fields = ParseCoordinates("1 DEGREES 2 MINUTES 3 SECONDS");
    EXPECT_EQ(fields.degrees, 1);
    EXPECT_EQ(fields.minutes, 2);
    EXPECT_EQ(fields.seconds, 3);
    EXPECT_EQ(fields.hemisphere, "");
}

TEST_F(DistanceTest, OtherLanguagesParseToNothing) {
    const CoordinateFields fields = ParseCoordinates("Breite: 30 Grad, 3 Minuten Nord");
    EXPECT_EQ(fields.degrees, 0);
    EXPECT_EQ(fields.minutes, 0);
    EXPECT_EQ(fields.hemisphere, "");
}

TEST_F(DistanceTest, WordWithoutANumberBeforeItIsAFault) {
    EXPECT_THROW(ParseCoordinates("degrees"), TypeMismatchFault);
    EXPECT_THROW(ParseCoordinates("many minutes"), TypeMismatchFault);
    EXPECT_THROW(ParseCoordinates("99999 degrees"), OverflowFault);
}

}  // namespace
}  // namespace horavex
