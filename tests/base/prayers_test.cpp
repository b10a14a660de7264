#include "base/prayers.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(Alert, HasTheIndexOfItsPrayer) {
    EXPECT_EQ(static_cast<Alert>(kFajr), Alert::kFajr);
    EXPECT_EQ(static_cast<Alert>(kShurooq), Alert::kShurooq);
    EXPECT_EQ(static_cast<Alert>(kZuhr), Alert::kZuhr);
    EXPECT_EQ(static_cast<Alert>(kAsr), Alert::kAsr);
    EXPECT_EQ(static_cast<Alert>(kMaghrib), Alert::kMaghrib);
    EXPECT_EQ(static_cast<Alert>(kIsha), Alert::kIsha);
}

TEST(Alert, CountsTheAthanOfTheMenuBeforeThePrayersAndTheAlarmBehindThem) {
    EXPECT_EQ(static_cast<int>(Alert::kAthanNow), -1);
    EXPECT_EQ(static_cast<int>(Alert::kDailyAlarm), 7);
}

}  // namespace
}  // namespace horavex
