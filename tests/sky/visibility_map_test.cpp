// Published maps, by what their makers say of them: M. Sh. Odeh, International Astronomical Center,
// on the evenings of Ramadan 1445, Shawwal 1444 and Shawwal 1445 (statements of 26 February 2024, 6
// April 2023 and 30 March 2024, by Odeh's criterion), and the page of the Islamic Crescents'
// Observation Project on Thul Kea'da 1424 (by Yallop's).

#include "sky/visibility_map.h"

#include <gtest/gtest.h>

#include "linux/erfa_almanac.h"
#include "platform/even_almanac.h"
#include "sky/month_evenings.h"

namespace horavex {
namespace {

const ErfaAlmanac kAlmanac;

VisibilityMap Complete(VisibilityMap map) {
    while (!map.IsComplete()) {
        map.ComputeRow();
    }
    return map;
}

VisibilityMap MapOf(Date day, Date newMoon) {
    return Complete(VisibilityMap(kAlmanac, day, newMoon, 2.0));
}

struct MapPlace {
    const char* name;
    double latitude, longitude;
};

std::string ClassesAt(const VisibilityMap& map, Criterion criterion,
                      const std::vector<MapPlace>& places) {
    std::string letters;
    for (const MapPlace& place : places) {
        const MapCell& cell = map.AtPlace(place.latitude, place.longitude);
        letters += cell.kind == EveningKind::kJudged ? cell.LetterOf(criterion) : '-';
    }
    return letters;
}

TEST(PublishedMap, OfRamadan1445IsVisibleFromTheAmericasByOpticalAid) {
    const VisibilityMap map =
        MapOf(DateSerial(2024, 3, 10), DateSerial(2024, 3, 10) + TimeSerial(9, 0, 0));
    EXPECT_EQ(ClassesAt(map, Criterion::kOdeh,
                        {{"Kuala Lumpur", 3.1, 101.7},
                         {"Karachi", 24.9, 67.0},
                         {"Mecca", 21.4, 39.8},
                         {"Cairo", 30.0, 31.2},
                         {"Istanbul", 41.0, 29.0},
                         {"Rabat", 34.0, -6.8},
                         {"Dakar", 14.7, -17.4}}),
              "DDDDDDD");
    EXPECT_EQ(ClassesAt(map, Criterion::kOdeh,
                        {{"New York", 40.7, -74.0},
                         {"Miami", 25.8, -80.2},
                         {"Mexico City", 19.4, -99.1},
                         {"Los Angeles", 34.1, -118.2},
                         {"Honolulu", 21.3, -157.9}}),
              "CCBBB");
    EXPECT_EQ(ClassesAt(map, Criterion::kOdeh, {{"Sao Paulo", -23.5, -46.6}}), "D");
}

TEST(PublishedMap, OfShawwal1444LeavesOutAsiaAndAustralia) {
    const VisibilityMap map =
        MapOf(DateSerial(2023, 4, 20), DateSerial(2023, 4, 20) + TimeSerial(4, 13, 0));
    for (double latitude = -44.0; latitude < 60.0; latitude += 4.0) {
        for (double longitude = 60.0; longitude < 150.0; longitude += 4.0) {
            const MapCell& cell = map.AtPlace(latitude, longitude);
            EXPECT_TRUE(cell.kind != EveningKind::kJudged || cell.odeh == 'D')
                << latitude << ' ' << longitude;
        }
    }
    EXPECT_EQ(ClassesAt(map, Criterion::kOdeh, {{"Mecca", 21.4, 39.8}, {"Cairo", 30.0, 31.2}}),
              "DD");
    EXPECT_EQ(ClassesAt(map, Criterion::kOdeh,
                        {{"Tripoli", 32.9, 13.2},
                         {"Rabat", 34.0, -6.8},
                         {"Dakar", 14.7, -17.4},
                         {"Madrid", 40.4, -3.7}}),
              "CCCC");
    EXPECT_EQ(
        ClassesAt(map, Criterion::kOdeh,
                  {{"Mexico City", 19.4, -99.1}, {"Los Angeles", 34.1, -118.2}, {"Quito", 0, -79}}),
        "BBB");
}

TEST(PublishedMap, OfShawwal1445GoesFromTheTelescopeInTheEastToTheNakedEyeInTheWest) {
    const VisibilityMap map =
        MapOf(DateSerial(2024, 4, 9), DateSerial(2024, 4, 8) + TimeSerial(18, 21, 0));
    EXPECT_EQ(ClassesAt(map, Criterion::kOdeh,
                        {{"Jakarta", -6.2, 106.8},
                         {"Tokyo", 35.7, 139.7},
                         {"Cape Town", -33.9, 18.4},
                         {"Johannesburg", -26.2, 28.0}}),
              "CCCC");
    EXPECT_EQ(ClassesAt(map, Criterion::kOdeh,
                        {{"Tashkent", 41.3, 69.2}, {"Almaty", 43.2, 76.9}, {"Lusaka", -15, 28}}),
              "BBB");
    EXPECT_EQ(ClassesAt(map, Criterion::kOdeh,
                        {{"Riyadh", 24.7, 46.7},
                         {"Amman", 31.9, 35.9},
                         {"Cairo", 30.0, 31.2},
                         {"Rabat", 34.0, -6.8},
                         {"Madrid", 40.4, -3.7},
                         {"New York", 40.7, -74.0}}),
              "AAAAAA");
}

TEST(PublishedMap, OfThulKeada1424TouchesTheWestCoastOfSouthAmerica) {
    const VisibilityMap map =
        MapOf(DateSerial(2003, 12, 23), DateSerial(2003, 12, 23) + TimeSerial(9, 43, 0));
    EXPECT_EQ(ClassesAt(map, Criterion::kYallop,
                        {{"Lima", -12.0, -77.0},
                         {"Antofagasta", -23.6, -70.4},
                         {"Santiago", -33.4, -70.7},
                         {"Comodoro Rivadavia", -45.9, -67.5}}),
              "CCCD");
    EXPECT_EQ(
        ClassesAt(
            map, Criterion::kYallop,
            {{"Easter Island", -27.1, -109.4}, {"Marquesas", -9, -140}, {"Tahiti", -18, -149}}),
        "BBA");
    EXPECT_EQ(ClassesAt(map, Criterion::kYallop,
                        {{"Sao Paulo", -23.5, -46.6},
                         {"Dakar", 14.7, -17.4},
                         {"Cape Town", -33.9, 18.4},
                         {"New York", 40.7, -74.0}}),
              "EFFF");
}

TEST(VisibilityMap, AsksNoCriterionBeforeTheNewMoonAndWhereTheMoonSetsFirst) {
    const VisibilityMap map =
        MapOf(DateSerial(2024, 3, 10), DateSerial(2024, 3, 10) + TimeSerial(9, 0, 0));
    EXPECT_EQ(map.AtPlace(-41.3, 174.8).kind, EveningKind::kBeforeNewMoon);  // Wellington
    EXPECT_EQ(map.AtPlace(45.8, 126.5).kind, EveningKind::kMoonSetsFirst);   // Harbin
    EXPECT_EQ(map.AtPlace(21.4, 39.8).kind, EveningKind::kJudged);
}

TEST(VisibilityMap, GoesRowByRowFromTheNorthAndStopsWhenItIsComplete) {
    VisibilityMap map(kAlmanac, DateSerial(2024, 3, 10), DateSerial(2024, 3, 10), 10.0);
    EXPECT_EQ(map.Rows(), 13);
    EXPECT_EQ(map.Columns(), 36);
    EXPECT_EQ(map.ComputedRows(), 0);
    map.ComputeRow();
    EXPECT_EQ(map.ComputedRows(), 1);
    EXPECT_FALSE(map.IsComplete());
    EXPECT_EQ(&map.AtPlace(59.0, -179.0), &map.At(0, 0));
    EXPECT_EQ(&map.AtPlace(59.0, 179.0), &map.At(0, 35));
    EXPECT_EQ(&map.AtPlace(59.0, 180.0), &map.At(0, 35));
    EXPECT_EQ(&map.AtPlace(89.0, -180.0), &map.At(0, 0));
    EXPECT_THROW(map.At(1, 0), std::out_of_range);
    for (int row = 1; row < 15; ++row) {
        map.ComputeRow();
    }
    EXPECT_EQ(map.ComputedRows(), 13);
    EXPECT_TRUE(map.IsComplete());
    EXPECT_EQ(&map.AtPlace(-89.0, 180.0), &map.At(12, 35));
}

// The clock of Samoa is 13 hours ahead of Greenwich, though the map counts the islands to the west.
TEST(VisibilityMap, OfTheSolarDayHasTheClassesOfTheListBeyondTheDateLine) {
    const Lookout samoa{{-15.0, -175.0},
                        [](Date local) { return local - 13.0 / 24.0; },
                        [](Date universal) { return universal + 13.0 / 24.0; }};
    const MonthEvenings month = EveningsOfMonth(kAlmanac, samoa, 1445, 9);
    const DatedEvening& evening = month.evenings[2];
    const VisibilityMap map =
        Complete(VisibilityMap(kAlmanac, SolarDay(samoa, evening.day), month.newMoon, 10.0));
    EXPECT_EQ(map.AtPlace(-15.0, -175.0).yallop, evening.crescent->yallop.letter);
    EXPECT_EQ(map.AtPlace(-15.0, -175.0).odeh, evening.crescent->odeh.letter);
}

TEST(VisibilityMap, HasNoEveningWhereTheSunDoesNotSet) {
    EvenAlmanac almanac;
    almanac.sunDistance = 6000.0;  // within the Earth: over no horizon that turns away from it
    almanac.sunPace = 360.0;
    VisibilityMap map(almanac, 40000.0, 40000.0, 10.0);
    map.ComputeRow();
    EXPECT_EQ(map.At(0, 0).kind, EveningKind::kNoSunset);
}

}  // namespace
}  // namespace horavex
