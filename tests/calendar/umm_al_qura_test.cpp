#include "calendar/umm_al_qura.h"

#include <map>

#include "base/fault.h"
#include "calendar/hijri_calendar.h"
#include "support/data_folder.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct UmmAlQuraTest : testing::Test {
    UmmAlQuraTest() { CopyBuiltProgramFolder(platform.files); }

    TestPlatform platform;
    DataFolder data{platform.files};
};

// First days as announced: Ramadan 1445, Shawwal 1445, Muharram 1446 and 1447.
TEST_F(UmmAlQuraTest, KnownMonthsBeginOnTheirDays) {
    const UmmAlQura calendar;
    EXPECT_EQ(calendar.DateOf({1445, 9, 1}), DateSerial(2024, 3, 11));
    EXPECT_EQ(calendar.DateOf({1445, 10, 1}), DateSerial(2024, 4, 10));
    EXPECT_EQ(calendar.DateOf({1446, 1, 1}), DateSerial(2024, 7, 7));
    EXPECT_EQ(calendar.HijriOf(DateSerial(2025, 6, 26)), (HijriDate{1447, 1, 1}));
    EXPECT_EQ(calendar.HijriOf(DateSerial(2025, 6, 25)), (HijriDate{1446, 12, 29}));
}

TEST_F(UmmAlQuraTest, TableRunsFrom1356To1500) {
    const UmmAlQura calendar;
    EXPECT_EQ(calendar.HijriOf(DateSerial(1937, 3, 14)), (HijriDate{1356, 1, 1}));
    EXPECT_EQ(calendar.HijriOf(DateSerial(1937, 3, 14) - 0.001), std::nullopt);
    EXPECT_EQ(calendar.HijriOf(DateSerial(2077, 11, 16) + 0.999), (HijriDate{1500, 12, 30}));
    EXPECT_EQ(calendar.HijriOf(DateSerial(2077, 11, 17)), std::nullopt);
    EXPECT_EQ(calendar.DateOf({1355, 12, 1}), std::nullopt);
    EXPECT_EQ(calendar.DateOf({1356, 1, 1}), DateSerial(1937, 3, 14));
    EXPECT_EQ(calendar.DateOf({1500, 12, 30}), DateSerial(2077, 11, 16));
    EXPECT_EQ(calendar.DateOf({1501, 1, 1}), std::nullopt);
}

/// Months of the table by how many days later the arithmetic calendar begins them.
std::map<int, int> DelaysOfTheArithmeticMonths() {
    const UmmAlQura calendar;
    std::map<int, int> months;
    for (int year = 1356; year <= 1500; ++year) {
        for (int month = 1; month <= 12; ++month) {
            const HijriDate first = {year, month, 1};
            ++months[static_cast<int>(DateFromHijri(first) - calendar.DateOf(first).value())];
        }
    }
    return months;
}

TEST_F(UmmAlQuraTest, ArithmeticMonthsBeginADayEarlierToTwoDaysLater) {
    const auto months = DelaysOfTheArithmeticMonths();
    EXPECT_EQ(months.size(), 4U);
    EXPECT_NEAR(months.at(-1) / 17.4, 1.0, 0.5) << "in 100";
    EXPECT_NEAR(months.at(0) / 17.4, 35.0, 0.5);
    EXPECT_NEAR(months.at(1) / 17.4, 59.0, 0.5);
    EXPECT_NEAR(months.at(2) / 17.4, 5.0, 0.5);
}

TEST_F(UmmAlQuraTest, BothEndsMeetTheArithmeticCalendar) {
    EXPECT_EQ(DateFromHijri({1356, 1, 1}), DateSerial(1937, 3, 14));
    EXPECT_EQ(DateFromHijri({1501, 1, 1}), DateSerial(2077, 11, 17));
}

TEST_F(UmmAlQuraTest, DayBeyondItsMonthCarriesOn) {
    EXPECT_EQ(UmmAlQura().DateOf({1446, 12, 30}), DateSerial(2025, 6, 26));
}

TEST_F(UmmAlQuraTest, MissingTableIsAFault) {
    data.Remove("Dat/UQ.DAT");
    EXPECT_THROW(UmmAlQura(), FileFault);
}

TEST_F(UmmAlQuraTest, CutTableIsAFault) {
    data.ShrinkBy("Dat/UQ.DAT", 1);
    EXPECT_THROW(UmmAlQura(), BoundsFault);
    data.ShrinkTo("Dat/UQ.DAT", 0);
    EXPECT_THROW(UmmAlQura(), BoundsFault);
}

TEST_F(UmmAlQuraTest, YearThatDoesNotFollowIsAFault) {
    data.SetInt32("Dat/UQ.DAT", 18 + 2, 0);
    EXPECT_THROW(UmmAlQura(), BoundsFault);
}

TEST_F(UmmAlQuraTest, MonthOfAnImpossibleLengthIsAFault) {
    data.SetByte("Dat/UQ.DAT", 144 * 18 + 17, 31);
    EXPECT_THROW(UmmAlQura(), BoundsFault);
    data.SetByte("Dat/UQ.DAT", 144 * 18 + 17, 27);
    EXPECT_THROW(UmmAlQura(), BoundsFault);
}

}  // namespace
}  // namespace horavex
