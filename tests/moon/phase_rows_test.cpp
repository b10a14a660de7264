#include "moon/phase_rows.h"

#include "base/text.h"
#include "moon/lunation.h"
#include "support/data_folder.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

using testing::Each;
using testing::MatchesRegex;

struct MoonPhasesTest : testing::Test {
    void ComputeAll(int number) {
        const auto year = static_cast<std::int16_t>(number);
        newMoons = ComputeNewMoonRows(year, 0.0);
        firstQuarters = ComputeFirstQuarterRows(year, 0.0);
        fullMoons = ComputeFullMoonRows(year, 0.0);
        lastQuarters = ComputeLastQuarterRows(year, 0.0);
    }

    MoonRows newMoons;
    MoonRows firstQuarters;
    MoonRows fullMoons;
    MoonRows lastQuarters;
};

std::vector<std::string> Filled(const MoonRows& rows) {
    return {rows.begin(), rows.begin() + kMoonRows};
}

TEST_F(MoonPhasesTest, NewMoonsOf2001) {
    ComputeAll(2001);
    EXPECT_THAT(Filled(newMoons),
                testing::ElementsAre("25 December 2000, 17hrs 22min", "24 January 2001, 13hrs 7min",
                                     "23 February 2001, 8hrs 22min", "25 March 2001, 1hrs 22min",
                                     "23 April 2001, 15hrs 26min", "23 May 2001, 2hrs 47min",
                                     "21 June 2001, 11hrs 58min", "20 July 2001, 19hrs 45min",
                                     "19 August 2001, 2hrs 56min", "17 September 2001, 10hrs 28min",
                                     "16 October 2001, 19hrs 24min", "15 November 2001, 6hrs 41min",
                                     "14 December 2001, 20hrs 48min"));
}

TEST_F(MoonPhasesTest, RowThatComesNextIsTheFirstNotYetBehindTheMoment) {
    constexpr double kNewYear = 2451910.5;  // 2001, as a Julian day
    EXPECT_EQ(NextMoonRow(MoonPhase::kNewMoon, 2001, kNewYear), 1);
    EXPECT_EQ(NextMoonRow(MoonPhase::kFirstQuarter, 2001, kNewYear), 0);
    EXPECT_EQ(NextMoonRow(MoonPhase::kFirstQuarter, 2001, kNewYear + 1.9), 0);
    EXPECT_EQ(NextMoonRow(MoonPhase::kFirstQuarter, 2001, kNewYear + 2.0), 1);
    EXPECT_EQ(NextMoonRow(MoonPhase::kNewMoon, 2001, kNewYear + 364.0), -1);
}

TEST_F(MoonPhasesTest, FirstQuartersOf2001) {
    ComputeAll(2001);
    EXPECT_THAT(
        Filled(firstQuarters),
        testing::ElementsAre("2 January 2001,  22hrs 32min", "1 February 2001,  14hrs 3min",
                             "3 March 2001,  2hrs 4min", "1 April 2001,  10hrs 50min",
                             "30 April 2001,  17hrs 8min", "29 May 2001,  22hrs 10min",
                             "28 June 2001,  3hrs 20min", "27 July 2001,  10hrs 9min",
                             "25 August 2001,  19hrs 55min", "24 September 2001,  9hrs 31min",
                             "24 October 2001,  2hrs 59min", "22 November 2001,  23hrs 21min",
                             "22 December 2001,  20hrs 57min"));
}

TEST_F(MoonPhasesTest, FullMoonsOf2001) {
    ComputeAll(2001);
    EXPECT_THAT(
        Filled(fullMoons),
        testing::ElementsAre("9 January 2001,  20hrs 25min", "8 February 2001,  7hrs 12min",
                             "9 March 2001,  17hrs 24min", "8 April 2001,  3hrs 22min",
                             "7 May 2001,  13hrs 53min", "6 June 2001,  1hrs 40min",
                             "5 July 2001,  15hrs 4min", "4 August 2001,  5hrs 56min",
                             "2 September 2001,  21hrs 44min", "2 October 2001,  13hrs 49min",
                             "1 November 2001,  5hrs 42min", "30 November 2001,  20hrs 50min",
                             "30 December 2001,  10hrs 41min"));
}

TEST_F(MoonPhasesTest, LastQuartersOf2001) {
    ComputeAll(2001);
    EXPECT_THAT(
        Filled(lastQuarters),
        testing::ElementsAre("16 January 2001,  12hrs 35min", "15 February 2001,  3hrs 24min",
                             "16 March 2001,  20hrs 46min", "15 April 2001,  15hrs 32min",
                             "15 May 2001,  10hrs 11min", "14 June 2001,  3hrs 29min",
                             "13 July 2001,  18hrs 46min", "12 August 2001,  7hrs 54min",
                             "10 September 2001,  19hrs 0min", "10 October 2001,  4hrs 20min",
                             "8 November 2001,  12hrs 22min", "7 December 2001,  19hrs 52min",
                             "6 January 2002,  3hrs 55min"));
}

TEST_F(MoonPhasesTest, EveryYearOfTwoCenturiesHas13RowsOfEachPhase) {
    const std::string row = "[0-9]+ [A-Z][a-z]+ [0-9]+,";
    const std::string clock = "[0-9]+hrs [0-9]+min";
    for (int year = 1900; year <= 2100; ++year) {
        ComputeAll(year);
        ASSERT_THAT(Filled(newMoons), Each(MatchesRegex(row + " " + clock))) << year;
        for (const MoonRows* rows : {&firstQuarters, &fullMoons, &lastQuarters}) {
            ASSERT_THAT(Filled(*rows), Each(MatchesRegex(row + "  " + clock))) << year;
        }
        for (const MoonRows* rows : {&newMoons, &firstQuarters, &fullMoons, &lastQuarters}) {
            ASSERT_EQ((*rows)[kMoonRows], "") << year;
        }
    }
}

TEST_F(MoonPhasesTest, RowsCarryNoLeadingZeros) {
    for (int year = 1900; year <= 2100; ++year) {
        ComputeAll(year);
        for (const MoonRows* rows : {&newMoons, &firstQuarters, &fullMoons, &lastQuarters}) {
            for (const std::string& row : Filled(*rows)) {
                for (const std::string& word : Split(row, ' ')) {
                    ASSERT_FALSE(word.size() > 1 && word[0] == '0' && IsDigit(word[1])) << row;
                }
            }
        }
    }
}

TEST_F(MoonPhasesTest, ZoneCountsTwiceInARow) {
    EXPECT_EQ(ComputeNewMoonRows(2001, 2.0)[1], "24 January 2001, 17hrs 7min");
}

TEST_F(MoonPhasesTest, ComputingAgainGivesTheSame) {
    ComputeAll(2026);
    const MoonRows before = lastQuarters;
    ReduceAngle(77.0);
    ComputeAll(2026);
    EXPECT_EQ(lastQuarters, before);
}

struct MoonRowLabelsTest : testing::Test {
    MoonRowLabelsTest() { CopyBuiltProgramFolder(platform.files); }

    static std::vector<std::string> Of(int number) {
        const auto year = static_cast<std::int16_t>(number);
        return MoonRowLabels(year, ComputeNewMoonRows(year, 0.0));
    }

    TestPlatform platform;
    DataFolder data{platform.files};
};

TEST_F(MoonRowLabelsTest, SlicesBeginAndEndAtTheirEntries) {
    EXPECT_EQ(Of(2001).front(), "Shawwal 1421");
    EXPECT_EQ(Of(2001).back(), "Shawwal  1422");
    EXPECT_EQ(Of(2011).front(), "Safar  1432");
    EXPECT_EQ(Of(2011).back(), "Safar  1433");
    EXPECT_EQ(Of(1990).front(), "Muharram 1411");
}

TEST_F(MoonRowLabelsTest, YearsOfTheShortSlicesLeaveTheLastRowWithoutALabel) {
    for (int year = 1995; year <= 2040; ++year) {
        const bool isShort = year == 2007 || year == 2019 || year == 2020;
        EXPECT_EQ(Of(year).size(), isShort ? 12U : 13U) << year;
    }
}

TEST_F(MoonRowLabelsTest, LabelsOf2026ComeFromTheConverter) {
    const auto labels = Of(2026);
    EXPECT_EQ(ComputeNewMoonRows(2026, 0.0)[0], "20 December 2025, 1hrs 44min");
    EXPECT_EQ(labels[0], " Rajab 1447");
    EXPECT_EQ(labels[2], " Ramadan 1447");
    EXPECT_THAT(labels, testing::Each(testing::StartsWith(" ")));
}

TEST_F(MoonRowLabelsTest, WithoutTheTableOfMonthsAllReadError) {
    data.Remove("Dat/UQ.DAT");
    EXPECT_EQ(Of(2021), std::vector<std::string>(13, "Error"));
    EXPECT_EQ(Of(2020).size(), 12U) << "earlier years need none";
}

}  // namespace
}  // namespace horavex
