#include "linux/system_clock.h"

#include "support/scoped_variable.h"

namespace horavex {
namespace {

// 2026-07-01 12:00:00 UTC.
constexpr std::time_t kSummerNoon = 1782907200;

// Zones are written out, so that they need no zone files of the machine.
constexpr const char* kBerlin = "CET-1CEST,M3.5.0,M10.5.0/3";

TEST(LocalDate, IsTheZonesDateAndTime) {
    const ScopedVariable zone("TZ", "UTC0");
    EXPECT_EQ(LocalDate(kSummerNoon), DateSerial(2026, 7, 1) + TimeSerial(12, 0, 0));
    EXPECT_EQ(LocalDate(0), DateSerial(1970, 1, 1));
    EXPECT_EQ(LocalDate(-1), DateSerial(1969, 12, 31) + TimeSerial(23, 59, 59));
}

TEST(LocalDate, ZoneThatChangesTakesEffectAtOnce) {
    const ScopedVariable before("TZ", "UTC0");
    EXPECT_EQ(LocalDate(kSummerNoon), DateSerial(2026, 7, 1) + TimeSerial(12, 0, 0));
    const ScopedVariable after("TZ", "XXX-14");
    EXPECT_EQ(LocalDate(kSummerNoon), DateSerial(2026, 7, 2) + TimeSerial(2, 0, 0));
}

TEST(LocalDate, DaylightSavingIsInIt) {
    const ScopedVariable zone("TZ", kBerlin);
    EXPECT_EQ(LocalDate(kSummerNoon), DateSerial(2026, 7, 1) + TimeSerial(14, 0, 0));
    // 2026-03-29 01:00 UTC: from 01:59:59 to 03:00:00.
    constexpr std::time_t kSpring = 1774746000;
    EXPECT_EQ(LocalDate(kSpring - 1), DateSerial(2026, 3, 29) + TimeSerial(1, 59, 59));
    EXPECT_EQ(LocalDate(kSpring), DateSerial(2026, 3, 29) + TimeSerial(3, 0, 0));
}

TEST(SystemClock, NowIsTheRunningSecond) {
    const ScopedVariable zone("TZ", "UTC0");
    const SystemClock clock;
    const std::time_t before = std::time(nullptr);
    const Date now = clock.Now();
    // The coarse clock of time() may lag behind by a scheduler's tick.
    const std::time_t after = std::time(nullptr) + 1;
    EXPECT_GE(now, LocalDate(before));
    EXPECT_LE(now, LocalDate(after));
    EXPECT_EQ(now, std::floor(now) + SecondOfDay(now) / kSecondsPerDay) << "a whole second";
    EXPECT_EQ(clock.Today(), std::floor(now));
}

TEST(SystemClock, UniversalTimeKnowsNoZone) {
    const ScopedVariable zone("TZ", "XXX-14");
    const SystemClock clock;
    const double ahead = clock.Now() - clock.UniversalNow();
    EXPECT_NEAR(ahead * 24.0, 14.0, 0.01);
}

TEST(SystemClock, SteadyClockGoesForward) {
    const SystemClock clock;
    const double start = clock.SteadySeconds();
    double last = start;
    while (last < start + 0.01) {
        const double next = clock.SteadySeconds();
        ASSERT_GE(next, last);
        last = next;
    }
    EXPECT_LT(last, start + 60.0) << "the unit is the second";
}

TEST(SystemClock, OffsetOfADayIsThatOfItsNoon) {
    const ScopedVariable zone("TZ", kBerlin);
    const SystemClock clock;
    EXPECT_EQ(clock.OffsetOn(DateSerial(2026, 3, 28)), (ClockOffset{1.0, false}));
    EXPECT_EQ(clock.OffsetOn(DateSerial(2026, 3, 29)), (ClockOffset{2.0, true}));
    EXPECT_EQ(clock.OffsetOn(DateSerial(2026, 10, 24)), (ClockOffset{2.0, true}));
    EXPECT_EQ(clock.OffsetOn(DateSerial(2026, 10, 25)), (ClockOffset{1.0, false}));
}

TEST(SystemClock, OffsetsFarFromGreenwichAreOfTheLocalDay) {
    const SystemClock clock;
    {
        const ScopedVariable zone("TZ", "NPT-5:45");
        EXPECT_EQ(clock.OffsetOn(DateSerial(2026, 6, 1)), (ClockOffset{5.75, false}));
    }
    // A zone 13 hours ahead whose daylight saving begins on 26 September at 2 in the morning.
    const ScopedVariable zone("TZ", "XXX-13YYY,M9.4.6,M4.1.0");
    EXPECT_EQ(clock.OffsetOn(DateSerial(2026, 9, 25)), (ClockOffset{13.0, false}));
    EXPECT_EQ(clock.OffsetOn(DateSerial(2026, 9, 26)), (ClockOffset{14.0, true}));
}

TEST(SystemClock, OffsetOfAMomentChangesWithinTheNight) {
    const ScopedVariable zone("TZ", kBerlin);
    const SystemClock clock;
    const auto at = [&](Date day, int hour, int minute, int second) {
        return clock.OffsetAt(day + TimeSerial(hour, minute, second)).hours;
    };
    const Date spring = DateSerial(2026, 3, 29);
    EXPECT_EQ(at(spring, 1, 59, 59), 1.0);
    EXPECT_EQ(at(spring, 2, 30, 0), 1.0) << "left out";
    EXPECT_EQ(at(spring, 3, 0, 0), 2.0);
    const Date autumn = DateSerial(2026, 10, 25);
    EXPECT_EQ(at(autumn, 1, 59, 59), 2.0);
    EXPECT_EQ(at(autumn, 2, 30, 0), 2.0) << "comes twice";
    EXPECT_EQ(at(autumn, 3, 0, 0), 1.0);
    EXPECT_EQ(at(autumn, 23, 0, 0), 1.0);
}

TEST(SystemClock, OffsetsBefore1970AreAskedForToo) {
    const ScopedVariable zone("TZ", "UTC0");
    EXPECT_EQ(SystemClock().OffsetOn(DateSerial(1900, 1, 1)), (ClockOffset{0.0, false}));
}

}  // namespace
}  // namespace horavex
