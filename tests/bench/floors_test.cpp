// A floor is one only as long as it does the whole work: it must give what the program gives, bit
// for bit.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

#include "base/date.h"
#include "base/text.h"
#include "built_places.h"
#include "engine/angle.h"
#include "engine/year_table.h"
#include "floors/export_floor.h"
#include "floors/moon_floor.h"
#include "floors/search_floor.h"
#include "floors/year_floor.h"
#include "moon/eclipses.h"
#include "moon/phase_rows.h"
#include "sample_year.h"
#include "store/city_list.h"

namespace horavex::bench {
namespace {

constexpr double kZone = 3.0;

std::string RowsOf(const MoonRows& rows) {
    std::string text;
    for (std::size_t i = 0; i < kMoonRows; ++i) {
        text += rows.at(i) + "\n";
    }
    return text;
}

TEST(FloorsTest, YearIsTheProgramsToTheBit) {
    for (std::int16_t year = 1990; year <= 2060; ++year) {
        YearInputs inputs = MeccaIn2026();
        inputs.year = year;
        const YearTimes expected = CalculateYear(inputs).times;
        YearTimes times;
        FloorYear(inputs, times);
        const std::size_t days = IsCivilDate(year, 2, 29) ? 366 : 365;
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            EXPECT_EQ(0, std::memcmp(times.at(prayer).data(), expected.at(prayer).data(),
                                     days * sizeof(double)))
                << year;
        }
    }
}

TEST(FloorsTest, MoonTablesAreTheProgramsToTheByte) {
    char room[kMoonRoom];
    for (std::int16_t year = 1900; year <= 2100; ++year) {
        EXPECT_EQ(FloorMoonTables(year, kZone, room),
                  RowsOf(ComputeNewMoonRows(year, kZone)) +
                      RowsOf(ComputeFirstQuarterRows(year, kZone)) +
                      RowsOf(ComputeFullMoonRows(year, kZone)) +
                      RowsOf(ComputeLastQuarterRows(year, kZone)));
    }
}

TEST(FloorsTest, EclipseListsAreTheProgramsToTheByte) {
    char room[kMoonRoom];
    double classified = 0.0;
    for (std::int16_t year = 1900; year <= 2100; ++year) {
        Eclipses eclipses;
        const std::string sun = ListSolarEclipses(eclipses, year, kZone);
        EXPECT_EQ(FloorEclipseLists(year, kZone, room, classified),
                  sun + ListLunarEclipses(eclipses, year, kZone));
    }
    EXPECT_NE(classified, 0.0);
}

TEST(FloorsTest, TextPagesAreTheProgramsToTheByte) {
    const BuiltPlaces places;
    TakeMeccaIn2026();
    const std::string pages = TextPages();
    std::string text;
    FloorTextPages(2026, Times, HeadsOf(pages), text);
    EXPECT_EQ(text, pages);
    EXPECT_THAT(pages, testing::HasSubstr("Prayer times of December 2026."));
}

TEST(FloorsTest, ScanCountsTheNamesThatHoldAText) {
    FoldedNames names;
    names.Add("cairo");
    names.Add("new cairo");
    names.Add("oran");
    EXPECT_EQ(names.Count("cairo"), 2u);
    EXPECT_EQ(names.Count("roo"), 0u);  // not across two names
}

}  // namespace
}  // namespace horavex::bench
