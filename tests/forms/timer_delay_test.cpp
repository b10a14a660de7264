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

TEST(DelayToTurn, EndsAtTheTurnOfASecond) {
    EXPECT_EQ(DelayToTurn(2, 1'700'000'000'000), 2000);
    EXPECT_EQ(DelayToTurn(2, 1'700'000'000'250), 1750);
    EXPECT_EQ(DelayToTurn(2, 1'700'000'000'499), 1501);
    EXPECT_EQ(DelayToTurn(2, 1'700'000'000'500), 2500);
    EXPECT_EQ(DelayToTurn(2, 1'700'000'000'999), 2001) << "early by a millisecond";
}

}  // namespace
}  // namespace horavex
