#include "forms/timer_delay.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

TEST(DelayToTick, OneSecondTimerWaitsForTheTurnOfTheSecond) {
    EXPECT_EQ(DelayToTick(1000, 1'700'000'000'250), 750);
    EXPECT_EQ(DelayToTick(1000, 1'700'000'000'999), 1);
    EXPECT_EQ(DelayToTick(1000, 1'700'000'000'000), 1000);
}

TEST(DelayToTick, EveryOtherTimerWaitsForItsInterval) {
    EXPECT_EQ(DelayToTick(30000, 1'700'000'000'250), 30000);
    EXPECT_EQ(DelayToTick(40, 1'700'000'000'999), 40);
}

}  // namespace
}  // namespace horavex
