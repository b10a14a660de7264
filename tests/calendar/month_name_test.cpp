#include "calendar/month_name.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

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
