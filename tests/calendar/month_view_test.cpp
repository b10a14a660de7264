#include "calendar/month_view.h"

#include "calendar/current_calendar.h"
#include "support/program_copy.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

struct MonthViewTest : testing::Test {
    MonthViewTest() { CopyBuiltProgramFolder(platform.files); }

    TestPlatform platform;
};

TEST_F(MonthViewTest, WithoutAMonthThereIsNoFirstDay) {
    MonthView view;
    EXPECT_FALSE(view.GotoFirstDay());
    EXPECT_EQ(view.GetMonthHeader(), "");
}

TEST_F(MonthViewTest, ShowsAGregorianMonth) {
    MonthView view;
    view.CalculateCalendarMonth(11, 2026);
    EXPECT_TRUE(view.GotoFirstDay());
    EXPECT_EQ(view.GetGregorianDay(), 1);
    EXPECT_EQ(view.GetHijriDay(), 21);
    EXPECT_EQ(view.GetDayOfWeek(), 0);
    EXPECT_EQ(view.GetMonthHeader(), "November 2026");
}

TEST_F(MonthViewTest, ShowsAHijriMonthWhileThatCalendarIsSelected) {
    CurrentCalendar = kHijriCalendar;
    MonthView view;
    view.CalculateCalendarMonth(9, 1445);
    EXPECT_TRUE(view.GotoFirstDay());
    EXPECT_EQ(view.GetHijriDay(), 1);
    EXPECT_EQ(view.GetGregorianDay(), 11);
    EXPECT_EQ(view.GetDayOfWeek(), 1);
    EXPECT_EQ(view.GetMonthHeader(), "Ramadan 1445");
}

}  // namespace
}  // namespace horavex
