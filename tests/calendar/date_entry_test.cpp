#include "calendar/date_entry.h"

#include "base/program_state.h"
#include "calendar/current_calendar.h"

namespace horavex {
namespace {

struct DateTextTest : testing::Test {
    DateTextTest() { ResetProgramState(); }
};

TEST_F(DateTextTest, ReadsDayMonthAndYear) {
    const auto date = ReadDateText(" 21 /11/2026");
    ASSERT_TRUE(date);
    EXPECT_EQ(date->day, 21);
    EXPECT_EQ(date->month, 11);
    EXPECT_EQ(date->year, 2026);
}

TEST_F(DateTextTest, RefusesWhatIsNoneOfThree) {
    for (const char* text : {"", "21", "21/11", "21/11/", "/11/2026", "21/11/2026/1", "21/x/2026",
                             "-1/11/2026", "1.5/11/2026", "21/11/123456"}) {
        EXPECT_FALSE(ReadDateText(text)) << text;
        EXPECT_FALSE(IsDateText(text)) << text;
    }
}

TEST_F(DateTextTest, TestsTheGregorianCalendar) {
    EXPECT_TRUE(IsDateText("31/12/2026"));
    EXPECT_FALSE(IsDateText("31/11/2026"));
    EXPECT_TRUE(IsDateText("29/2/2028"));
    EXPECT_FALSE(IsDateText("29/2/2026"));
    EXPECT_FALSE(IsDateText("1/1/0"));
    EXPECT_FALSE(IsDateText("1/1/10000"));
}

TEST_F(DateTextTest, TestsTheHijriCalendarWhileItIsSelected) {
    CurrentCalendar = kHijriCalendar;
    EXPECT_TRUE(IsDateText("30/1/1448"));
    EXPECT_FALSE(IsDateText("31/1/1448"));
    EXPECT_FALSE(IsDateText("30/2/1448"));
    EXPECT_TRUE(IsDateText("30/12/1447"));
    EXPECT_FALSE(IsDateText("30/12/1446"));
    EXPECT_FALSE(IsDateText("1/13/1448"));
    EXPECT_FALSE(IsDateText("0/1/1448"));
    EXPECT_FALSE(IsDateText("1/1/0"));
    EXPECT_FALSE(IsDateText("1/1/10000"));
}

}  // namespace
}  // namespace horavex
