#include "store/location_text.h"

#include "base/fault.h"
#include "store/settings_record.h"
#include "support/data_folder_test.h"

namespace horavex {
namespace {

struct ZoneCase {
    double longitude;  // degrees, east positive
    std::int16_t west;
    std::int16_t nearest;
    std::int16_t east;
};

class ZoneFromLongitudeTest : public testing::TestWithParam<ZoneCase> {};

TEST_P(ZoneFromLongitudeTest, GivesTheZonesAroundAndTheNearest) {
    const ZoneCase& expected = GetParam();
    ZoneFromLongitude(expected.longitude);
    EXPECT_EQ(ZoneWest, expected.west);
    EXPECT_EQ(ZoneNearest, expected.nearest);
    EXPECT_EQ(ZoneEast, expected.east);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ZoneFromLongitudeTest,
    testing::Values(ZoneCase{0.0, 0, 0, 1}, ZoneCase{-0.0, 0, 0, 1},    // no sign, no west
                    ZoneCase{37.5, 2, 3, 3}, ZoneCase{-7.5, -1, 0, 0},  // a half goes east
                    ZoneCase{7.5, 0, 1, 1}, ZoneCase{-37.5, -3, -2, -2}, ZoneCase{37.49, 2, 2, 3},
                    ZoneCase{-7.51, -1, -1, 0},
                    ZoneCase{30.0, 2, 2, 3},      // an exact multiple is its own western zone,
                    ZoneCase{-30.0, -3, -2, -2},  // or its own eastern one
                    ZoneCase{15.0, 1, 1, 2}, ZoneCase{-15.0, -2, -1, -1},
                    ZoneCase{180.0, 12, 12, 13}, ZoneCase{-180.0, -13, -12, -12},
                    ZoneCase{-0.01, -1, 0, 0}, ZoneCase{0.01, 0, 0, 1}, ZoneCase{31.25, 2, 2, 3},
                    ZoneCase{-74.01, -5, -5, -4}, ZoneCase{327.67, 21, 22, 22},
                    ZoneCase{-327.68, -22, -22, -21}));

TEST(ZoneFromLongitude, BeyondSixteenBitsIsAFault) {
    EXPECT_THROW(ZoneFromLongitude(15.0 * 32768.0), OverflowFault);
    EXPECT_THROW(ZoneFromLongitude(15.0 * 32767.0), OverflowFault);  // its eastern zone
    EXPECT_THROW(ZoneFromLongitude(15.0 * -32768.0), OverflowFault);
}

/// The words of a coordinate in a language column, each ending in the column's number.
class CoordinateTextTest : public DataFolderTest {
protected:
    CoordinateTextTest() {
        data.WriteTexts(kTextEntries);
        for (const std::int16_t language : {std::int16_t{1}, std::int16_t{2}}) {
            const std::string mark = language == 1 ? "" : "2";
            data.WriteText(TextEntry::kNorth, language, "North" + mark);
            data.WriteText(TextEntry::kEast, language, "East" + mark);
            data.WriteText(TextEntry::kSouth, language, "South" + mark);
            data.WriteText(TextEntry::kWest, language, "West" + mark);
            data.WriteText(TextEntry::kDegrees, language, "degrees" + mark);
            data.WriteText(TextEntry::kMinutes, language, "minutes" + mark);
            data.WriteText(TextEntry::kTimeZone, language, "Zones" + mark);
            data.WriteText(TextEntry::kLatitude, language, "Latitude" + mark);
            data.WriteText(TextEntry::kLongitude, language, "Longitude" + mark);
        }
    }
};

TEST_F(CoordinateTextTest, LatitudeHasItsCaptionAndHemisphere) {
    EXPECT_EQ(FormatLatitude(30.06, 1), "Latitude: 30 degrees, 4 minutes North");
    EXPECT_EQ(FormatLatitude(-23.55, 1), "Latitude: 23 degrees, 33 minutes South");
}

TEST_F(CoordinateTextTest, LongitudeHasItsCaptionAndHemisphere) {
    EXPECT_EQ(FormatLongitude(31.25, 1), "Longitude: 31 degrees, 15 minutes East");
    EXPECT_EQ(FormatLongitude(-46.63, 1), "Longitude: 46 degrees, 38 minutes West");
}

TEST_F(CoordinateTextTest, ZeroIsNorthAndEast) {
    EXPECT_EQ(FormatLatitude(0.0, 1), "Latitude: 0 degrees, 0 minutes North");
    EXPECT_EQ(FormatLongitude(-0.0, 1), "Longitude: 0 degrees, 0 minutes East");
}

TEST_F(CoordinateTextTest, LessThanADegreeKeepsItsHemisphere) {
    EXPECT_EQ(FormatLatitude(-0.5, 1), "Latitude: 0 degrees, 30 minutes South");
    EXPECT_EQ(FormatLongitude(-0.02, 1), "Longitude: 0 degrees, 1 minutes West");
}

TEST_F(CoordinateTextTest, SixtyMinutesAreNotCarried) {
    EXPECT_EQ(FormatLatitude(59.9999, 1), "Latitude: 59 degrees, 60 minutes North");
}

TEST_F(CoordinateTextTest, WordsComeFromTheLanguageColumn) {
    EXPECT_EQ(FormatLatitude(-1.0, 2), "Latitude2: 1 degrees2, 0 minutes2 South2");
    EXPECT_EQ(FormatLatitude(1.0, 2), "Latitude2: 1 degrees2, 0 minutes2 North2");
    EXPECT_EQ(FormatLongitude(-1.0, 2), "Longitude2: 1 degrees2, 0 minutes2 West2");
    EXPECT_EQ(FormatLongitude(1.0, 0), "Longitude: 1 degrees, 0 minutes East");
}

TEST_F(CoordinateTextTest, ShownPlaceSetsZonesAndTexts) {
    LocationRecord place;
    place.City.Latitude = -2355;
    place.City.Longitude = -4663;
    Settings.Language = 2;
    ActiveSettings.Language = 1;
    ShowLocation(place);
    EXPECT_EQ(LatitudeText, "Latitude2: 23 degrees2, 33 minutes2 South2");
    EXPECT_EQ(LongitudeText, "Longitude2: 46 degrees2, 38 minutes2 West2");
    EXPECT_EQ(ZoneHintText, "Zones2 ( -4, -3, ...)");
    EXPECT_EQ(ZoneNearest, -3);
}

TEST_F(CoordinateTextTest, CoordinatesOffTheEarthAreShownToo) {
    LocationRecord place;
    place.City.Latitude = 32767;
    place.City.Longitude = -32768;
    Settings.Language = 1;
    ShowLocation(place);
    EXPECT_EQ(LatitudeText, "Latitude: 327 degrees, 40 minutes North");
    EXPECT_EQ(ZoneHintText, "Zones ( -22, -21, ...)");
}

TEST_F(CoordinateTextTest, MissingTextsAreAFileFault) {
    data.Remove("Dat/T.DAT");
    EXPECT_THROW(ShowLocation(LocationRecord()), FileFault);
}

}  // namespace
}  // namespace horavex
