// Eclipses of NASA's canons by F. Espenak and J. Meeus.

#include "skywindows/eclipses_page.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "skywindows/sky_test_place.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

struct EclipsesPageTest : testing::Test {
    SkyPage PageOf(int year) { return EclipsesPage(ErfaAlmanac(), MeccaSky(), year); }

    /// The first row whose greatest eclipse begins so.
    Grid::Row RowAt(const SkyPage& page, const std::string& when) {
        const auto row = std::ranges::find_if(
            page.rows, [&](const Grid::Row& other) { return other.cells.at(2).starts_with(when); });
        return row == page.rows.end() ? Grid::Row{} : *row;
    }

    TestPlatform platform;
};

TEST_F(EclipsesPageTest, HasKindGreatestAndWhatThePlaceSees) {
    const SkyPage page = PageOf(2027);
    EXPECT_THAT(page.heads, ElementsAre("", "Eclipse", "Greatest", "Here", "Begins",
                                        "Greatest here", "Ends", "Seen", "Magnitude"));
    const auto total = RowAt(page, "2 August").cells;
    ASSERT_THAT(total, SizeIs(9));
    EXPECT_EQ(total[0], "Sun");
    EXPECT_EQ(total[1], "total");
    EXPECT_EQ(total[2], "2 August  01:07 PM");
    EXPECT_EQ(total[3], "total");
    EXPECT_THAT(total[5], StartsWith("01:2"));
    EXPECT_THAT(total[8], StartsWith("1.0"));
}

TEST_F(EclipsesPageTest, ExplainsTheMarkOfAVainCandidateWhereThereIsOne) {
    for (const int year : {2020, 2021, 2022, 2023, 2024, 2025, 2026, 2027}) {
        const SkyPage page = PageOf(year);
        const bool hasMark = std::ranges::any_of(
            page.rows, [](const Grid::Row& row) { return row.cells.at(1) == "none *"; });
        EXPECT_EQ(page.note.find("* For the year in question") != std::string::npos, hasMark)
            << year;
    }
}

TEST_F(EclipsesPageTest, SaysThatThePlaceSeesNone) {
    const auto annular = RowAt(PageOf(2027), "6 February").cells;
    EXPECT_THAT(annular, ElementsAre("Sun", "annular", "6 February  07:00 PM", "not seen", "", "",
                                     "", "", ""));
}

TEST_F(EclipsesPageTest, SetsWhatHappensBelowTheHorizonInBrackets) {
    SkyPlace london = MeccaSky();
    london.observer = {51.5, -0.12};
    const SkyPage page = EclipsesPage(ErfaAlmanac(), london, 2018);
    const auto row = RowAt(page, "27 July").cells;  // the moon rose eclipsed
    ASSERT_THAT(row, SizeIs(9));
    EXPECT_THAT(row[4], StartsWith("("));
    EXPECT_THAT(row[6], testing::Not(HasSubstr("(")));
}

TEST_F(EclipsesPageTest, TellsWhileTheBodyIsUp) {
    EXPECT_EQ(RowAt(PageOf(2027), "2 August").cells[7], "12:02 PM to 02:45 PM");
}

// The sun of June and the moon of December dip below the horizon of the north and come up again.
TEST_F(EclipsesPageTest, TellsBothSpansOfAnEclipseThatIsSeenTwice) {
    SkyPlace north = MeccaSky();
    north.observer = {67.0, 45.0};
    EXPECT_EQ(RowAt(EclipsesPage(ErfaAlmanac(), north, 2011), "2 June").cells[7],
              "11:28 PM to 11:38 PM and 12:18 AM to 01:06 AM");
    north.observer = {65.0, 60.0};
    EXPECT_EQ(RowAt(EclipsesPage(ErfaAlmanac(), north, 2010), "21 December").cells[7],
              "09:33 AM to 09:35 AM and 12:24 PM to 01:01 PM");
}

TEST_F(EclipsesPageTest, CallsAnEclipsePenumbralWhereTheMoonSetsBeforeTheUmbraMeetsIt) {
    SkyPlace muscat = MeccaSky();
    muscat.observer = {23.6, 58.4};
    const auto row = RowAt(EclipsesPage(ErfaAlmanac(), muscat, 2026), "28 August").cells;
    ASSERT_THAT(row, SizeIs(9));
    EXPECT_EQ(row[1], "partial");
    EXPECT_EQ(row[3], "penumbral");
    EXPECT_THAT(row[4], StartsWith("04:2"));  // where the penumbra begins
    EXPECT_EQ(row[8], "");
}

TEST_F(EclipsesPageTest, MarksWhatTheMoonWindowListsInVain) {
    const SkyPage page = PageOf(2026);
    const auto none = RowAt(page, "19 March").cells;
    ASSERT_THAT(none, SizeIs(9));
    EXPECT_EQ(none[0], "Sun");
    EXPECT_EQ(none[1], "none *");
    EXPECT_EQ(none[2], "19 March");  // its instant is nothing of the sky's
    EXPECT_THAT(page.note,
                HasSubstr("* For the year in question the list in the window \"Moon Phases\""));
}

TEST_F(EclipsesPageTest, RowsStandInTheOrderOfTheYear) {
    const SkyPage page = PageOf(2026);
    const auto place = [&](const char* when) {
        return std::ranges::find_if(
            page.rows, [&](const Grid::Row& row) { return row.cells.at(2).starts_with(when); });
    };
    EXPECT_LT(place("17 February"), place("3 March"));
    EXPECT_LT(place("3 March"), place("19 March"));
    EXPECT_LT(place("19 March"), place("12 August"));
}

}  // namespace
}  // namespace horavex
