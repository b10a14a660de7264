#include "calendar/date_guard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calendar/current_calendar.h"
#include "forms/form.h"

namespace horavex {
namespace {

class DateForm : public Form {
public:
    DateForm() : Form("frmDate") {}

    ComboBox day{*this, "day"};
    ComboBox month{*this, "month"};
    ComboBox year{*this, "year"};
};

/// A shown form on 30 November 2026.
class DateGuardTest : public testing::Test {
protected:
    DateGuardTest() {
        FillNumbers(form.day, 1, 31);
        FillNumbers(form.month, 1, 12);
        FillNumbers(form.year, 2020, 2030);
        guard.Bind(form.day, form.month, form.year);
        form.Show();
        guard.SetDate(30, 11, 2026);
    }

    DateForm form;
    DateGuard guard;
};

TEST_F(DateGuardTest, ListsHaveTheNumbersFromFirstToLast) {
    EXPECT_EQ(form.day.ListCount(), 31);
    EXPECT_EQ(form.day.ListItem(0), "1");
    EXPECT_EQ(form.year.ListItem(10), "2030");
}

TEST_F(DateGuardTest, ShowsADateThatIsNoneOnTheWay) {
    guard.SetDate(31, 1, 2024);
    guard.SetDate(29, 2, 2024);
    EXPECT_EQ(form.day.Text(), "29");
    EXPECT_EQ(form.month.Text(), "2");
    EXPECT_EQ(form.year.Text(), "2024");
}

TEST_F(DateGuardTest, TypedDayThatTheMonthLacksGoesBack) {
    form.day.UserType("31");
    EXPECT_EQ(form.day.Text(), "30");
    form.day.UserType("29");
    EXPECT_EQ(form.day.Text(), "29");
    form.day.UserType("31");
    EXPECT_EQ(form.day.Text(), "29") << "the last that was good";
}

TEST_F(DateGuardTest, ChosenDayThatTheMonthLacksGoesBack) {
    form.day.UserSelect(30);
    EXPECT_EQ(form.day.Text(), "30");
    EXPECT_EQ(form.day.ListIndex(), 29);
}

TEST_F(DateGuardTest, ChosenMonthThatLacksTheDayGoesBack) {
    form.month.UserSelect(1);
    EXPECT_EQ(form.month.Text(), "11");
}

TEST_F(DateGuardTest, TextThatIsNoNumberGoesBack) {
    form.month.UserType("1x");
    EXPECT_EQ(form.month.Text(), "11");
}

TEST_F(DateGuardTest, EmptyTextIsLetThroughUntilTheFocusLeaves) {
    form.day.UserType("");
    EXPECT_EQ(form.day.Text(), "");
    form.day.UserLeave();
    EXPECT_EQ(form.day.Text(), "30");
}

TEST_F(DateGuardTest, GoesBackToTheTextOfTheFocusAndNotToAnOlderOne) {
    form.day.UserFocus();
    guard.SetDate(15, 11, 2026);
    form.month.UserFocus();
    form.day.UserType("40");
    EXPECT_EQ(form.day.Text(), "15");
}

TEST_F(DateGuardTest, LastGoodTextIsEmptyBeforeTheFirstFocus) {
    form.day.SetText("31");
    EXPECT_EQ(form.day.Text(), "");
}

TEST_F(DateGuardTest, NewBindingForgetsTheLastGoodTexts) {
    form.day.UserFocus();
    guard.Bind(form.day, form.month, form.year);
    form.day.SetText("31");
    EXPECT_EQ(form.day.Text(), "");
}

TEST_F(DateGuardTest, JudgesByTheCalendarThatIsCurrent) {
    const CalendarScope hijri(kHijriCalendar);
    guard.SetDate(29, 2, 1447);  // Safar has 29 days
    form.day.UserType("30");
    EXPECT_EQ(form.day.Text(), "29");
    guard.SetDate(29, 1, 1447);
    form.day.UserType("30");
    EXPECT_EQ(form.day.Text(), "30");
}

}  // namespace
}  // namespace horavex
