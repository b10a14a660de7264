#include "platform/manual_clock.h"

namespace horavex {
namespace {

TEST(ManualClock, SetMovesTheWallClockAlone) {
    ManualClock clock;
    clock.Set(46000.123456);
    EXPECT_EQ(clock.Now(), 46000.123456);
    EXPECT_EQ(clock.SteadySeconds(), 0.0);
}

TEST(ManualClock, AdvanceMovesBothClocks) {
    ManualClock clock;
    clock.Set(DateSerial(2026, 11, 21) + TimeSerial(5, 31, 0));
    clock.Advance(61.5);
    EXPECT_EQ(clock.SteadySeconds(), 61.5);
    EXPECT_DOUBLE_EQ(clock.Now(), DateSerial(2026, 11, 21) + TimeSerial(5, 32, 1) + 0.5 / 86400);
}

TEST(ManualClock, MidnightComesOnTheSecond) {
    ManualClock clock;
    clock.Set(DateSerial(2026, 12, 31) + TimeSerial(23, 59, 58));
    clock.Advance(1.0);
    EXPECT_EQ(clock.Today(), DateSerial(2026, 12, 31));
    clock.Advance(1.0);
    EXPECT_EQ(clock.Now(), DateSerial(2027, 1, 1));
}

TEST(ManualClock, DayOfHundredthsEndsOnTheSecond) {
    ManualClock clock;
    const Date day = DateSerial(2026, 11, 21);
    clock.Set(day);
    for (int second = 1; second <= 86400; ++second) {
        for (int hundredth = 0; hundredth < 100; ++hundredth) {
            clock.Advance(0.01);
        }
        ASSERT_EQ(clock.Now(), day + TimeSerial(0, 0, second));
    }
    EXPECT_EQ(clock.SteadySeconds(), 86400.0);
}

}  // namespace
}  // namespace horavex
