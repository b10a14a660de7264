#include "engine/next_prayer.h"

#include "engine/sample_year.h"
#include "lang/language_pack.h"

namespace horavex {
namespace {

constexpr PrayerRow kRow = {5.0, 6.5, 12.0, 15.25, 18.0, 19.5};

Date At(int hour, int minute, int second) {
    return DateSerial(2026, 11, 21) + TimeSerial(hour, minute, second);
}

struct NextPrayerTest : EngineTest {
    NextPrayerTest() {
        currentLanguage = "English";
        platform.files.WriteWhole(
            "/program/lang/English.ini",
            BytesOf("[other]\nFajr=Fajr tomorrow\nZuhr=Zuhr at\nAsr=Asr at\nMaghrib=Maghrib at\n"
                    "Isha=Isha at\n"));
        FillRow(100, kRow);
        FillRow(101, {5.01, 6.5, 12.0, 15.25, 18.0, 19.5});
    }

    void FillRow(std::size_t row, const PrayerRow& times) {
        for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
            Times[prayer][row] = times[prayer];
        }
    }
};

TEST(FindNextPrayer, WaitsForNoShurooq) {
    EXPECT_EQ(FindNextPrayer(kRow, At(5, 30, 0)), 2);
}

TEST(FindNextPrayer, EqualSecondIsNotAhead) {
    EXPECT_EQ(FindNextPrayer(kRow, At(11, 59, 59)), 2);
    EXPECT_EQ(FindNextPrayer(kRow, At(12, 0, 0)), 3);
}

TEST(FindNextPrayer, ComparesWholeSeconds) {
    PrayerRow row = kRow;
    row[kZuhr] = 12.0 + 0.4 / 3600;  // rounds to 12:00:00
    EXPECT_EQ(FindNextPrayer(row, At(12, 0, 0)), 3);
    row[kZuhr] = 12.0 + 0.6 / 3600;  // rounds to 12:00:01
    EXPECT_EQ(FindNextPrayer(row, At(12, 0, 0)), 2);
}

TEST(FindNextPrayer, BeforeDawnItIsFajr) {
    EXPECT_EQ(FindNextPrayer(kRow, At(0, 0, 0)), 0);
}

TEST(FindNextPrayer, AfterIshaNoneIsLeft) {
    EXPECT_EQ(FindNextPrayer(kRow, At(19, 30, 0)), 6);
}

TEST_F(NextPrayerTest, FajrOfTodayHasAFixedText) {
    const auto next = DescribeNextPrayer(0, 100, At(4, 0, 0));
    EXPECT_EQ(next.sentence, "Fajr at 5:00:00 AM");
    EXPECT_EQ(next.prayer, 0);
}

TEST_F(NextPrayerTest, BeforeTodaysFajrTheSpanReachesTomorrow) {
    const auto next = DescribeNextPrayer(0, 100, At(4, 0, 0));
    EXPECT_EQ(next.secondsFromNow, 86400.0 + 3600.0);
    EXPECT_EQ(RemainingText(next.secondsFromNow), "1:0:0");
}

TEST_F(NextPrayerTest, OthersAreNamedByThePack) {
    EXPECT_EQ(DescribeNextPrayer(2, 100, At(11, 0, 0)).sentence, "Zuhr at 12:00:00 PM");
    EXPECT_EQ(DescribeNextPrayer(3, 100, At(13, 0, 0)).sentence, "Asr at 3:15:00 PM");
    EXPECT_EQ(DescribeNextPrayer(4, 100, At(17, 0, 0)).sentence, "Maghrib at 6:00:00 PM");
    EXPECT_EQ(DescribeNextPrayer(5, 100, At(19, 0, 0)).sentence, "Isha at 7:30:00 PM");
    EXPECT_EQ(DescribeNextPrayer(5, 100, At(19, 0, 0)).secondsFromNow, 1800.0);
}

TEST_F(NextPrayerTest, ShurooqWouldBeToldAsZuhr) {
    EXPECT_EQ(DescribeNextPrayer(1, 100, At(6, 0, 0)).sentence, "Zuhr at 12:00:00 PM");
}

TEST_F(NextPrayerTest, AfterIshaItIsTomorrowsFajr) {
    const auto next = DescribeNextPrayer(6, 100, At(19, 31, 0));
    EXPECT_EQ(next.prayer, 0);
    EXPECT_EQ(next.sentence, "Fajr tomorrow 5:00:36 AM");
    EXPECT_EQ(next.secondsFromNow, 86400.0 - 19.0 * 3600 - 31 * 60 + 5 * 3600 + 36);
}

TEST_F(NextPrayerTest, LastEveningOfACommonYearReadsTheUnwrittenRow) {
    FillRow(364, kRow);
    EXPECT_EQ(DescribeNextPrayer(6, 364, At(20, 0, 0)).sentence, "Fajr tomorrow 12:00:00 AM");
}

TEST_F(NextPrayerTest, LastEveningOfALeapYearShowsItsOwnFajr) {
    FillRow(365, kRow);
    EXPECT_EQ(DescribeNextPrayer(6, 365, At(20, 0, 0)).sentence, "Fajr tomorrow 5:00:00 AM");
}

TEST_F(NextPrayerTest, WithoutAPackTheNameIsEmpty) {
    currentLanguage = "Nowhere";
    EXPECT_EQ(DescribeNextPrayer(3, 100, At(13, 0, 0)).sentence, " 3:15:00 PM");
}

TEST(RemainingText, HasNoLeadingZerosAndNoDays) {
    EXPECT_EQ(RemainingText(0), "0:0:0");
    EXPECT_EQ(RemainingText(5 * 3600 + 12), "5:0:12");
    EXPECT_EQ(RemainingText(86400 + 61), "0:1:1");
    EXPECT_EQ(RemainingText(86399), "23:59:59");
}

}  // namespace
}  // namespace horavex
