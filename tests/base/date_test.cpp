#include "base/date.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cmath>

namespace horavex {
namespace {

/// Year, month, day or hour, minute, second.
using Fields = std::array<int, 3>;

Fields CivilFields(Date date) {
    const CivilDate civil = CivilFromDate(date);
    return {civil.year, civil.month, civil.day};
}

Fields ClockFields(Date date) {
    const ClockTime time = ClockTimeOf(date);
    return {time.hour, time.minute, time.second};
}

TEST(DateSerial, CountsDaysFrom30December1899) {
    EXPECT_EQ(DateSerial(1899, 12, 30), 0.0);
    EXPECT_EQ(DateSerial(1899, 12, 29), -1.0);
    EXPECT_EQ(DateSerial(1900, 1, 1), 2.0);
    EXPECT_EQ(DateSerial(1900, 3, 1), 61.0);
    EXPECT_EQ(DateSerial(1970, 1, 1), 25569.0);
    EXPECT_EQ(DateSerial(2001, 1, 1), 36892.0);
    EXPECT_EQ(DateSerial(9999, 12, 31), 2958465.0);
    EXPECT_EQ(DateSerial(1, 1, 1), -693593.0);
}

TEST(DateSerial, FebruaryFollowsTheGregorianLeapRule) {
    EXPECT_EQ(DateSerial(1900, 3, 1) - DateSerial(1900, 2, 28), 1.0);
    EXPECT_EQ(DateSerial(2000, 3, 1) - DateSerial(2000, 2, 28), 2.0);
    EXPECT_EQ(DateSerial(2024, 3, 1) - DateSerial(2024, 2, 28), 2.0);
    EXPECT_EQ(DateSerial(2026, 3, 1) - DateSerial(2026, 2, 28), 1.0);
    EXPECT_EQ(DateSerial(2100, 3, 1) - DateSerial(2100, 2, 28), 1.0);
}

TEST(DateSerial, MonthsBeyondTheYearCarry) {
    EXPECT_EQ(DateSerial(2001, 13, 1), DateSerial(2002, 1, 1));
    EXPECT_EQ(DateSerial(2001, 24, 1), DateSerial(2002, 12, 1));
    EXPECT_EQ(DateSerial(2001, 25, 1), DateSerial(2003, 1, 1));
    EXPECT_EQ(DateSerial(2001, 0, 1), DateSerial(2000, 12, 1));
    EXPECT_EQ(DateSerial(2001, -11, 1), DateSerial(2000, 1, 1));
    EXPECT_EQ(DateSerial(2001, -12, 1), DateSerial(1999, 12, 1));
}

TEST(DateSerial, MonthsCarryBelowTheYearZero) {
    const int daysOfYearZero = 366;
    EXPECT_EQ(DateSerial(1, -11, 1), DateSerial(1, 1, 1) - daysOfYearZero);
    EXPECT_EQ(DateSerial(1, -12, 1), DateSerial(1, 1, 1) - daysOfYearZero - 31);
}

TEST(DateSerial, DaysBeyondTheMonthCarry) {
    EXPECT_EQ(DateSerial(2001, 1, 0), DateSerial(2000, 12, 31));
    EXPECT_EQ(DateSerial(2000, 3, 0), DateSerial(2000, 2, 29));
    EXPECT_EQ(DateSerial(2001, 3, 0), DateSerial(2001, 2, 28));
    EXPECT_EQ(DateSerial(2001, 1, -30), DateSerial(2000, 12, 1));
    EXPECT_EQ(DateSerial(2001, 2, 29), DateSerial(2001, 3, 1));
    EXPECT_EQ(DateSerial(2001, 1, 366), DateSerial(2002, 1, 1));
}

TEST(DateSerial, MonthCarriesBeforeTheDay) {
    EXPECT_EQ(DateSerial(2001, 14, 29), DateSerial(2002, 3, 1));
    EXPECT_EQ(DateSerial(2001, 0, 32), DateSerial(2001, 1, 1));
}

TEST(CivilFromDate, EveryDayFrom1600To2400ComesBack) {
    using namespace std::chrono;
    const sys_days end{year{2401} / January / 1};
    for (sys_days day{year{1600} / January / 1}; day < end; day += days{1}) {
        const year_month_day ymd{day};
        const Fields civil = {static_cast<int>(ymd.year()),
                              static_cast<int>(static_cast<unsigned>(ymd.month())),
                              static_cast<int>(static_cast<unsigned>(ymd.day()))};
        const Date date = DateSerial(civil[0], civil[1], civil[2]);
        ASSERT_EQ(date, static_cast<double>(day.time_since_epoch().count() + 25569));
        ASSERT_EQ(CivilFields(date), civil);
        ASSERT_TRUE(IsCivilDate(civil[0], civil[1], civil[2]));
        ASSERT_EQ(Weekday(date), static_cast<int>(weekday{day}.c_encoding()));
    }
}

TEST(CivilFromDate, TheWholeDayBelongsToItsDate) {
    const Fields last{2026, 11, 21};
    EXPECT_EQ(CivilFields(DateSerial(2026, 11, 21)), last);
    EXPECT_EQ(CivilFields(DateSerial(2026, 11, 21) + 0.99999), last);
    EXPECT_EQ(CivilFields(DateSerial(2026, 11, 22)), (Fields{2026, 11, 22}));
}

TEST(CivilFromDate, MomentBeforeTheEpochBelongsToTheDayThatHoldsIt) {
    EXPECT_EQ(CivilFields(-0.25), (Fields{1899, 12, 29}));
    EXPECT_EQ(CivilFields(-1.0), (Fields{1899, 12, 29}));
    EXPECT_EQ(CivilFields(-1.25), (Fields{1899, 12, 28}));
}

TEST(CivilFromDate, ReachesTheFirstAndTheLastDay) {
    EXPECT_EQ(CivilFields(-693593.0), (Fields{1, 1, 1}));
    EXPECT_EQ(CivilFields(2958465.0), (Fields{9999, 12, 31}));
}

TEST(Weekday, KnownDays) {
    EXPECT_EQ(Weekday(DateSerial(1899, 12, 30)), 6);  // Saturday
    EXPECT_EQ(Weekday(DateSerial(1969, 7, 20)), 0);   // the first landing on the moon, a Sunday
    EXPECT_EQ(Weekday(DateSerial(2000, 1, 1)), 6);
    EXPECT_EQ(Weekday(DateSerial(1582, 10, 15)), 5);  // first Gregorian day, a Friday
}

TEST(Weekday, TimeOfDayDoesNotMoveIt) {
    EXPECT_EQ(Weekday(0.999), 6);
    EXPECT_EQ(Weekday(1.0), 0);
    EXPECT_EQ(Weekday(-0.001), 5);
    EXPECT_EQ(Weekday(-6.0), 0);
    EXPECT_EQ(Weekday(-7.0), 6);
}

TEST(IsCivilDate, KnowsTheLengthOfEveryMonth) {
    const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (int month = 1; month <= 12; ++month) {
        EXPECT_TRUE(IsCivilDate(2026, month, lengths[month - 1])) << month;
        EXPECT_FALSE(IsCivilDate(2026, month, lengths[month - 1] + 1)) << month;
    }
}

TEST(IsCivilDate, LeapDayStandsInLeapYearsOnly) {
    EXPECT_TRUE(IsCivilDate(2024, 2, 29));
    EXPECT_TRUE(IsCivilDate(2000, 2, 29));
    EXPECT_FALSE(IsCivilDate(1800, 2, 29));
    EXPECT_FALSE(IsCivilDate(1900, 2, 29));
    EXPECT_FALSE(IsCivilDate(2100, 2, 29));
    EXPECT_FALSE(IsCivilDate(2000, 2, 30));
}

TEST(IsCivilDate, FieldsOutsideTheirRangeAreNoDate) {
    EXPECT_FALSE(IsCivilDate(2026, 0, 1));
    EXPECT_FALSE(IsCivilDate(2026, 13, 1));
    EXPECT_FALSE(IsCivilDate(2026, -1, 1));
    EXPECT_FALSE(IsCivilDate(2026, 1, 0));
    EXPECT_FALSE(IsCivilDate(2026, 1, -1));
}

TEST(IsCivilDate, YearsAre1To9999) {
    EXPECT_TRUE(IsCivilDate(1, 1, 1));
    EXPECT_TRUE(IsCivilDate(9999, 12, 31));
    EXPECT_FALSE(IsCivilDate(0, 12, 31));
    EXPECT_FALSE(IsCivilDate(10000, 1, 1));
}

TEST(TimeSerial, IsAFractionOfADay) {
    EXPECT_EQ(TimeSerial(0, 0, 0), 0.0);
    EXPECT_EQ(TimeSerial(6, 0, 0), 0.25);
    EXPECT_EQ(TimeSerial(12, 0, 0), 0.5);
    EXPECT_EQ(TimeSerial(0, 0, 1), 1.0 / 86400.0);
    EXPECT_EQ(TimeSerial(23, 59, 59), 86399.0 / 86400.0);
}

TEST(TimeSerial, FieldsBeyondTheirRangeCarry) {
    EXPECT_EQ(TimeSerial(24, 0, 0), 1.0);
    EXPECT_EQ(TimeSerial(0, 90, 0), TimeSerial(1, 30, 0));
    EXPECT_EQ(TimeSerial(0, 0, -1), -1.0 / 86400.0);
}

TEST(ClockTimeOf, TakesTheFieldsApart) {
    EXPECT_EQ(ClockFields(0.0), (Fields{0, 0, 0}));
    EXPECT_EQ(ClockFields(0.75), (Fields{18, 0, 0}));
    EXPECT_EQ(ClockFields(DateSerial(2026, 11, 21) + TimeSerial(12, 34, 56)), (Fields{12, 34, 56}));
    EXPECT_EQ(ClockFields(TimeSerial(23, 59, 59)), (Fields{23, 59, 59}));
}

TEST(ClockTimeOf, RoundsToTheNearestSecond) {
    EXPECT_EQ(ClockFields((3599.0 + 0.49) / 86400.0), (Fields{0, 59, 59}));
    EXPECT_EQ(ClockFields((3599.0 + 0.51) / 86400.0), (Fields{1, 0, 0}));
}

TEST(ClockTimeOf, TheDaysLastHalfSecondIsMidnight) {
    EXPECT_EQ(ClockFields(86399.4 / 86400.0), (Fields{23, 59, 59}));
    EXPECT_EQ(ClockFields(86399.7 / 86400.0), (Fields{0, 0, 0}));
    EXPECT_EQ(ClockFields(DateSerial(2026, 11, 21) + 86399.7 / 86400.0), (Fields{0, 0, 0}));
}

TEST(ClockTimeOf, NegativeMomentCountsFromTheMidnightBefore) {
    EXPECT_EQ(ClockFields(-0.25), (Fields{18, 0, 0}));
    EXPECT_EQ(ClockFields(-2.0), (Fields{0, 0, 0}));
    EXPECT_EQ(ClockFields(-1e-18), (Fields{0, 0, 0}));
}

// 1/256 of a day is 337.5 seconds exactly.
TEST(SecondOfDay, TiesGoToTheEvenSecond) {
    EXPECT_EQ(SecondOfDay(1.0 / 256.0), 338);
    EXPECT_EQ(SecondOfDay(3.0 / 256.0), 1012);
    EXPECT_EQ(SecondOfDay(40000.0 + 3.0 / 256.0), 1012);
}

TEST(SecondOfDay, TimeOfNoDateIsMidnight) {
    EXPECT_EQ(SecondOfDay(NAN), 0);
    EXPECT_EQ(SecondOfDay(INFINITY), 0);
    EXPECT_EQ(SecondOfDay(1e300), 0);
}

TEST(SecondOfDay, EverySecondComesBackOnAnyDay) {
    for (const Date day : {DateSerial(1600, 1, 1), 0.0, DateSerial(2026, 11, 21)}) {
        for (int second = 0; second < 86400; ++second) {
            ASSERT_EQ(SecondOfDay(day + TimeSerial(0, 0, second)), second);
        }
    }
}

}  // namespace
}  // namespace horavex
