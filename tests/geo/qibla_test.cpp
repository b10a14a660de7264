#include "geo/qibla.h"

#include "engine/angle.h"
#include "engine/place.h"
#include "store/settings_record.h"
#include "support/data_folder.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct QiblaTest : testing::Test {
    /// The words of the sentence in English; those of the second column have a mark.
    QiblaTest() {
        const std::pair<TextEntry, const char*> words[] = {
            {TextEntry::kNorth, "North"},     {TextEntry::kEast, "East"},
            {TextEntry::kWest, "West"},       {TextEntry::kDegrees, "degrees"},
            {TextEntry::kMinutes, "minutes"}, {TextEntry::kOf, "of"},
            {TextEntry::kQibla, "Qibla"},
        };
        for (const auto& [entry, word] : words) {
            data.WriteText(entry, 1, word);
            data.WriteText(entry, 2, std::string(word) + "2");
        }
        Settings.QiblaMethod = 1;
    }

    void From(double latitude, double longitude) {
        LatitudeRad = DegToRad(latitude);
        LongitudeWestRad = -DegToRad(longitude);
        ComputeQibla();
    }

    TestPlatform platform;
    DataFolder data{platform.files};
};

TEST_F(QiblaTest, FromCairo) {
    From(30.05, 31.25);
    EXPECT_NEAR(QiblaDegrees, 136.2, 0.05);
    EXPECT_DOUBLE_EQ(QiblaRad, DegToRad(QiblaDegrees));
    EXPECT_EQ(QiblaText, "Qibla: 136 degrees, 13 minutes East of North");
}

// Bearings of the geodesic of WGS84 to the Kaaba, by GeographicLib 2.0.
TEST_F(QiblaTest, IsTheWayOverTheGlobeToAQuarterOfADegree) {
    struct {
        double latitude, longitude, bearing;  // degrees
    } constexpr kPlaces[] = {{30.05, 31.25, 136.05}, {51.5, -0.12, 118.87},
                             {40.7, -74.0, 58.40},   {-6.2, 106.8, -64.97},
                             {-33.92, 18.42, 23.47}, {-33.87, 151.21, -82.68},
                             {64.13, -21.9, 106.06}};
    for (const auto& place : kPlaces) {
        From(place.latitude, place.longitude);
        EXPECT_NEAR(QiblaDegrees, place.bearing, 0.26) << place.latitude;
    }
}

TEST_F(QiblaTest, FromTheMiddleOfNorthAmerica) {
    From(40.0, -100.0);
    EXPECT_NEAR(QiblaDegrees, 39.2, 0.05);
    EXPECT_THAT(QiblaText, testing::HasSubstr("East of North"));
}

TEST_F(QiblaTest, FromTheEastItIsNegativeAndTellsWest) {
    From(-6.2, 106.85);
    EXPECT_LT(QiblaDegrees, 0.0);
    EXPECT_EQ(QiblaText, "Qibla: 64 degrees, 51 minutes West of North");
}

TEST_F(QiblaTest, BothMethodsGiveTheSame) {
    From(30.05, 31.25);
    const double first = QiblaRad;
    From(-6.2, 106.85);
    Settings.QiblaMethod = 2;
    From(30.05, 31.25);
    EXPECT_EQ(QiblaRad, first);
    EXPECT_EQ(QiblaDegrees, RadToDeg(first));
}

TEST_F(QiblaTest, SentenceIsInTheLanguageOfTheAcceptedSettings) {
    Settings.Language = 1;
    ActiveSettings.Language = 2;
    From(30.05, 31.25);
    EXPECT_EQ(QiblaText, "Qibla2: 136 degrees2, 13 minutes2 East2 of2 North2");
}

TEST_F(QiblaTest, BearingOfExactlyNorthIsEast) {
    Settings.QiblaMethod = 0;
    for (const double north : {0.0, -0.0}) {
        QiblaDegrees = north;
        ComputeQibla();
        EXPECT_EQ(QiblaText, "Qibla: 0 degrees, 0 minutes East of North");
    }
}

TEST_F(QiblaTest, UnknownMethodKeepsTheOldBearing) {
    From(30.05, 31.25);
    const double former = QiblaRad;
    Settings.QiblaMethod = 3;
    QiblaText.clear();
    From(-6.2, 106.85);
    EXPECT_EQ(QiblaRad, former);
    EXPECT_EQ(QiblaText, "Qibla: 136 degrees, 13 minutes East of North");
}

TEST_F(QiblaTest, SixtyMinutesStandInTheSentence) {
    Settings.QiblaMethod = 0;
    QiblaDegrees = 58.999;
    ComputeQibla();
    EXPECT_EQ(QiblaText, "Qibla: 58 degrees, 60 minutes East of North");
}

TEST_F(QiblaTest, BesideMeccaItIsSomeDirection) {
    From(21.42, 39.82);
    EXPECT_GE(QiblaRad, -Pi);
    EXPECT_LE(QiblaRad, Pi);
}

}  // namespace
}  // namespace horavex
