#include "calendar/date_words.h"

#include <gtest/gtest.h>

#include "calendar/current_calendar.h"
#include "calendar/hijri_calendar.h"
#include "engine/ruled_year.h"
#include "lang/language_pack.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct HijriTodayTest : testing::Test {
    HijriTodayTest() {
        currentLanguage = "English";
        platform.files.WriteWhole("/program/lang/English.ini",
                                  BytesOf("[other]\n1=Muharram\n10=Shawwal\n12=Zul Hijja\n"));
    }
    TestPlatform platform;
};

TEST_F(HijriTodayTest, GivesDayMonthAndYearAsTexts) {
    platform.clock.Set(DateSerial(1996, 2, 25) + 0.5);
    const HijriTexts today = HijriToday();
    EXPECT_EQ(today.day, "5");
    EXPECT_EQ(today.monthName, "Shawwal");
    EXPECT_EQ(today.year, "1416");
}

TEST_F(HijriTodayTest, RulesOfTheYearMayHaveAnotherDate) {
    platform.clock.Set(DateSerial(1996, 2, 25) + 0.5);
    RuledYear.inputs.year = 1996;
    RuledYear.rules.hijri.assign(366, HijriDate{1416, 10, 6});
    EXPECT_EQ(HijriToday().day, "6");
}

TEST_F(HijriTodayTest, NewYearComesAtLocalMidnight) {
    const Date newYear = DateFromHijri({1448, 1, 1});
    platform.clock.Set(newYear - TimeSerial(0, 0, 1));
    EXPECT_EQ(HijriToday().monthName, "Zul Hijja");
    EXPECT_EQ(HijriToday().year, "1447");
    platform.clock.Advance(1);
    EXPECT_EQ(HijriToday().day, "1");
    EXPECT_EQ(HijriToday().monthName, "Muharram");
    EXPECT_EQ(HijriToday().year, "1448");
}

TEST_F(HijriTodayTest, MissingMonthNameIsEmptyAndTheRestGoesOn) {
    platform.clock.Set(DateSerial(1996, 3, 25));
    EXPECT_EQ(HijriToday().monthName, "");
    EXPECT_EQ(HijriToday().year, "1416");
}

TEST_F(HijriTodayTest, DatesAreArrangedByThePack) {
    EXPECT_EQ(DayOfMonth(1), "1");
    EXPECT_EQ(HijriDateText({"11", "Shawwal", "1448"}), "11 Shawwal 1448");
    platform.files.WriteWhole(
        "/program/lang/German.ini",
        BytesOf("[timetables]\nHijriDate={day}. {month} {year}\nFirstOfMonth=1er\n"));
    currentLanguage = "German";
    EXPECT_EQ(HijriDateText({"11", "Schawwal", "1448"}), "11. Schawwal 1448");
    EXPECT_EQ(HijriDateText({"1", "Schawwal", "1448"}), "1er. Schawwal 1448");
    EXPECT_EQ(DayOfMonth(1), "1er");
    EXPECT_EQ(DayOfMonth(21), "21");
}

TEST_F(HijriTodayTest, LeavesTheCalendarAsItWas) {
    HijriToday();
    EXPECT_EQ(CurrentCalendar, kGregorianCalendar);
}

TEST_F(HijriTodayTest, MonthNameIsCutAtItsBuffer) {
    platform.files.WriteWhole("/program/lang/English.ini",
                              BytesOf("[other]\n2=" + std::string(300, 'x') + "\n"));
    EXPECT_EQ(HijriMonthName(2), std::string(254, 'x'));
}

TEST(MonthName, IsTheEnglishName) {
    EXPECT_EQ(MonthName(1), "January");
    EXPECT_EQ(MonthName(2), "February");
    EXPECT_EQ(MonthName(6), "June");
    EXPECT_EQ(MonthName(9), "September");
    EXPECT_EQ(MonthName(11), "November");
    EXPECT_EQ(MonthName(12), "December");
}

TEST(MonthName, ZeroIsJanuaryAndAnyOtherNumberDecember) {
    EXPECT_EQ(MonthName(0), "January");
    EXPECT_EQ(MonthName(13), "December");
    EXPECT_EQ(MonthName(-1), "December");
}

}  // namespace
}  // namespace horavex
