#include "calendar/current_calendar.h"

#include "base/program_state.h"

namespace horavex {
namespace {

struct CurrentCalendarTest : testing::Test {
    CurrentCalendarTest() { ResetProgramState(); }
    const Date day = DateSerial(1996, 2, 25);
};

TEST_F(CurrentCalendarTest, StartsGregorian) {
    EXPECT_EQ(CurrentCalendar, 0);
    EXPECT_EQ(DayOf(day), 25);
    EXPECT_EQ(MonthOf(day), 2);
    EXPECT_EQ(YearOf(day), 1996);
}

TEST_F(CurrentCalendarTest, AnswersInHijriWhileItIsOne) {
    CurrentCalendar = 1;
    EXPECT_EQ(DayOf(day), 5);
    EXPECT_EQ(MonthOf(day), 10);
    EXPECT_EQ(YearOf(day), 1416);
}

TEST_F(CurrentCalendarTest, BaseDatesStayGregorian) {
    CurrentCalendar = 1;
    EXPECT_EQ(CivilFromDate(day).year, 1996);
}

TEST_F(CurrentCalendarTest, ScopeRestoresTheFormerValue) {
    CurrentCalendar = 1;
    {
        const CalendarScope gregorian(kGregorianCalendar);
        EXPECT_EQ(CurrentCalendar, 0);
    }
    EXPECT_EQ(CurrentCalendar, 1);
}

}  // namespace
}  // namespace horavex
