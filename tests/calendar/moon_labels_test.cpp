#include "calendar/moon_labels.h"

#include "base/fault.h"
#include "calendar/current_calendar.h"
#include "lang/language_pack.h"
#include "support/data_folder.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct MoonLabelsTest : testing::Test {
    MoonLabelsTest() { CopyBuiltProgramFolder(platform.files); }

    TestPlatform platform;
    DataFolder data{platform.files};
};

TEST_F(MoonLabelsTest, TableHoldsFourBlocks) {
    const MoonMonthLabels labels = BuildMoonMonthLabels(2020);
    EXPECT_EQ(labels[0], "Shawwal 1440");
    EXPECT_EQ(labels[1], "Zul Qaada 1440");
    EXPECT_EQ(labels[2], "Zul Hijja 1440");
    EXPECT_EQ(labels[3], "Muharram 1441");
    EXPECT_EQ(labels[4], "Safar  1441");
    EXPECT_EQ(labels[11], "Ramadan  1441");
    EXPECT_EQ(labels[12], "Shawwal  1441");
    EXPECT_EQ(labels[14], "Zul Hijja 1441");
    EXPECT_EQ(labels[15], "Muharram 1442");
    EXPECT_EQ(labels[26], "Zul Hijja 1442");
    EXPECT_EQ(labels[27], "Muharram 0");
    EXPECT_EQ(labels[38], "Zul Hijja 0");
    EXPECT_EQ(labels[39], "");
}

TEST_F(MoonLabelsTest, NamesStandInTheirOrder) {
    const MoonMonthLabels labels = BuildMoonMonthLabels(2000);
    EXPECT_THAT(
        std::vector<std::string>(labels.begin() + 3, labels.begin() + 15),
        testing::ElementsAre("Muharram 1421", "Safar  1421", "Rabi'Awal 1421", "Rabi'Thani 1421",
                             "Jamad Awal 1421", "Jamad Thani 1421", "Rajab 1421", "Sha'ban 1421",
                             "Ramadan  1421", "Shawwal  1421", "Zul Qaada 1421", "Zul Hijja 1421"));
}

TEST_F(MoonLabelsTest, YearBelowTheFieldIsAFault) {
    EXPECT_THROW(BuildMoonMonthLabels(-32767), OverflowFault);
}

struct SliceOfYear {
    int year;
    LabelSlice slice;
};

class SlicesOfYears : public testing::TestWithParam<SliceOfYear> {};

TEST_P(SlicesOfYears, AreAsTheTableSays) {
    EXPECT_EQ(MoonLabelRows(static_cast<std::int16_t>(GetParam().year)), GetParam().slice);
}

INSTANTIATE_TEST_SUITE_P(From1999, SlicesOfYears,
                         testing::Values(SliceOfYear{1, {3, 15}}, SliceOfYear{1999, {3, 15}},
                                         SliceOfYear{2000, {0, 12}}, SliceOfYear{2001, {0, 12}},
                                         SliceOfYear{2002, {0, 12}}, SliceOfYear{2003, {1, 13}},
                                         SliceOfYear{2004, {1, 13}}, SliceOfYear{2005, {1, 13}},
                                         SliceOfYear{2006, {1, 13}}, SliceOfYear{2007, {2, 13}},
                                         SliceOfYear{2008, {3, 15}}, SliceOfYear{2009, {3, 15}},
                                         SliceOfYear{2010, {3, 15}}, SliceOfYear{2011, {4, 16}},
                                         SliceOfYear{2012, {4, 16}}, SliceOfYear{2013, {4, 16}},
                                         SliceOfYear{2014, {5, 17}}, SliceOfYear{2015, {5, 17}},
                                         SliceOfYear{2016, {5, 17}}, SliceOfYear{2017, {6, 18}},
                                         SliceOfYear{2018, {6, 18}}, SliceOfYear{2019, {7, 18}},
                                         SliceOfYear{2020, {7, 18}}));

TEST_F(MoonLabelsTest, LaterYearsHaveNoSlice) {
    EXPECT_EQ(MoonLabelRows(2021), std::nullopt);
    EXPECT_EQ(MoonLabelRows(2100), std::nullopt);
}

TEST_F(MoonLabelsTest, MonthNamesHaveNumbersInAnyCase) {
    EXPECT_EQ(MonthNumberFromName("January"), 1);
    EXPECT_EQ(MonthNumberFromName("DECEMBER"), 12);
    EXPECT_EQ(MonthNumberFromName("Januar"), -1);
    EXPECT_EQ(MonthNumberFromName(""), -1);
}

TEST_F(MoonLabelsTest, RowIsNamedByTheDayTwoDaysLater) {
    // The new moon of 20 November 2025 at 7 hours; Jamad Thani 1447 began on the 22nd.
    EXPECT_EQ(HijriLabelForMoonRow("20 November 2025, 7hrs 0min"), " Jamad Thani 1447");
    EXPECT_EQ(HijriLabelForMoonRow("19 November 2025, 7hrs 0min"), " Jamad Awal 1447");
}

TEST_F(MoonLabelsTest, EndOfAYearCarriesOn) {
    EXPECT_EQ(HijriLabelForMoonRow("31 December 2025, 7hrs 0min"), " Rajab 1447");
}

TEST_F(MoonLabelsTest, RowIsReadInTheGregorianCalendar) {
    CurrentCalendar = kHijriCalendar;
    EXPECT_EQ(HijriLabelForMoonRow("20 November 2025, 7hrs 0min"), " Jamad Thani 1447");
}

TEST_F(MoonLabelsTest, RowThatIsNoneGivesTheErrorText) {
    for (const char* row :
         {"", "20 November 2025", "20 November, 7hrs", "20 Novembre 2025, 7hrs 0min",
          "31 November 2025, 7hrs 0min", "x November 2025, 7hrs 0min"}) {
        EXPECT_EQ(HijriLabelForMoonRow(row), "Error") << row;
    }
}

TEST_F(MoonLabelsTest, ErrorTextIsThePacks) {
    currentLanguage = "French";
    EXPECT_EQ(HijriLabelForMoonRow("no comma"), "Erreur");
}

TEST_F(MoonLabelsTest, MissingTableOfMonthsGivesTheErrorText) {
    data.Remove("Dat/UQ.DAT");
    EXPECT_EQ(HijriLabelForMoonRow("20 November 2025, 7hrs 0min"), "Error");
}

}  // namespace
}  // namespace horavex
