#include "moon/moon_row_labels.h"

#include "moon/phase_rows.h"
#include "support/data_folder.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

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
