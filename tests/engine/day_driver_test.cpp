#include "engine/day_driver.h"

#include "engine/angle.h"
#include "engine/sample_year.h"
#include "engine/solar_event.h"

namespace horavex {
namespace {

using RecalculateYearTest = EngineTest;

TEST_F(RecalculateYearTest, TakesThePlaceOverWithWestPositive) {
    Cairo();
    Calculate(2001);
    EXPECT_DOUBLE_EQ(LatitudeRad, DegToRad(30.05));
    EXPECT_DOUBLE_EQ(LongitudeWestRad, -DegToRad(31.25));
}

TEST_F(RecalculateYearTest, ComputesTheQiblaOnceAfterASuccess) {
    Cairo();
    Calculate(2001);
    EXPECT_EQ(host.qiblas, 1);
}

TEST_F(RecalculateYearTest, LeavesTheQiblaAfterAFailure) {
    London(18.0, 17.0);
    Calculate(2001);
    EXPECT_EQ(host.qiblas, 0);
}

TEST_F(RecalculateYearTest, ReportsEveryDayOfALeapYear) {
    Cairo();
    Calculate(2024);
    EXPECT_EQ(host.percents.size(), 366U);
    EXPECT_EQ(LeapFlag, 1);
}

}  // namespace
}  // namespace horavex
