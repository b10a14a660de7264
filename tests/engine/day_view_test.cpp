#include "engine/day_view.h"

#include <gtest/gtest.h>

namespace horavex {
namespace {

constexpr std::array<double, kPrayerCount> kHours = {5.0, 6.5, 12.0, 15.25, 18.0, 19.5};

DayMoments Moments() {
    DayMoments moments;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        moments[prayer].hours = kHours[prayer];
    }
    return moments;
}

Date At(int hour, int minute, int second) {
    return DateSerial(2026, 11, 21) + TimeSerial(hour, minute, second);
}

DayView ViewOf(const DayMoments& today, Date now) {
    DayMoments tomorrow = Moments();
    tomorrow[kFajr].hours = 5.01;
    return MakeDayView({"Cairo", today, tomorrow, Moments(), {1448, 6, 10}, 136.25}, now);
}

DayView ViewAt(int hour, int minute, int second) {
    return ViewOf(Moments(), At(hour, minute, second));
}

TEST(NextPrayer, WaitsForNoShurooq) {
    EXPECT_EQ(ViewAt(5, 30, 0).next.prayer, 2);
}

TEST(NextPrayer, EqualSecondIsNotAhead) {
    EXPECT_EQ(ViewAt(11, 59, 59).next.prayer, 2);
    EXPECT_EQ(ViewAt(12, 0, 0).next.prayer, 3);
}

TEST(NextPrayer, ComparesWholeSeconds) {
    DayMoments moments = Moments();
    moments[kZuhr].hours = 12.0 + 0.4 / 3600;  // rounds to 12:00:00
    EXPECT_EQ(ViewOf(moments, At(12, 0, 0)).next.prayer, 3);
    moments[kZuhr].hours = 12.0 + 0.6 / 3600;  // rounds to 12:00:01
    EXPECT_EQ(ViewOf(moments, At(12, 0, 0)).next.prayer, 2);
}

TEST(NextPrayer, BeforeDawnItIsFajr) {
    EXPECT_EQ(ViewAt(0, 0, 0).next.prayer, 0);
}

TEST(NextPrayer, AfterIshaNoneIsLeft) {
    EXPECT_TRUE(ViewAt(19, 30, 0).next.isTomorrows);
}

TEST(MakeDayView, CarriesItsSourceAndTheDatesOfTheMoment) {
    const DayView day = ViewAt(13, 0, 0);
    EXPECT_EQ(day.now, At(13, 0, 0));
    EXPECT_EQ(day.date, DateSerial(2026, 11, 21));
    EXPECT_EQ(day.hijri, (HijriDate{1448, 6, 10}));
    EXPECT_EQ(day.place, "Cairo");
    EXPECT_EQ(day.moments, Moments());
    EXPECT_EQ(day.qiblaDegrees, 136.25);
}

TEST(MakeDayView, NextMomentIsTodaysWithTheSecondsUntilThen) {
    const NextMoment next = ViewAt(13, 0, 0).next;
    EXPECT_EQ(next.prayer, 3);
    EXPECT_FALSE(next.isTomorrows);
    EXPECT_EQ(next.moment.hours, 15.25);
    EXPECT_EQ(next.remainingSeconds, 2 * 3600 + 15 * 60);
}

TEST(MakeDayView, BeforeDawnTheSecondsEndAtTodaysFajr) {
    const NextMoment next = ViewAt(4, 0, 0).next;
    EXPECT_EQ(next.prayer, 0);
    EXPECT_FALSE(next.isTomorrows);
    EXPECT_EQ(next.remainingSeconds, 3600);
}

TEST(MakeDayView, AfterIshaTheNextMomentIsTomorrowsFajr) {
    const NextMoment next = ViewAt(19, 31, 0).next;
    EXPECT_EQ(next.prayer, 0);
    EXPECT_TRUE(next.isTomorrows);
    EXPECT_EQ(next.moment.hours, 5.01);
    EXPECT_EQ(next.remainingSeconds, 86400 - 19 * 3600 - 31 * 60 + 5 * 3600 + 36);
}

TEST(MakeDayView, OnlyMomentsThatCrossMidnightFallOnTheDayBeside) {
    const DayView day = ViewAt(12, 0, 0);
    EXPECT_TRUE(day.late.empty());
    EXPECT_TRUE(day.early.empty());
}

// The clock is put forward an hour at 1:00.
TEST(MakeDayView, ClockThatIsTurnedBeforeTheMomentIsNoTimeToWait) {
    DayMoments tomorrow = Moments();
    tomorrow[kFajr] = {6.0, MomentBy::kSun, 0, 1.0};
    const DaySource source = {"London", Moments(), tomorrow, Moments(), {}, 0.0, 0.0};
    EXPECT_EQ(MakeDayView(source, At(23, 0, 0)).next.remainingSeconds, 6.0 * 3600.0);
}

/// A summer of high latitudes: Isha a quarter past midnight, every day alike.
DayView ShortNightAt(int hour, int minute) {
    DayMoments moments = Moments();
    moments[kIsha] = {24.25, MomentBy::kRule, 1};
    moments[kFajr].hours = 1.5;
    return MakeDayView({"Oslo", moments, moments, moments, {}, 0.0}, At(hour, minute, 0));
}

TEST(ShortNight, IshaBehindMidnightIsCountedDownToFromTheEvening) {
    const NextMoment next = ShortNightAt(23, 15).next;
    EXPECT_EQ(next.prayer, 5);
    EXPECT_FALSE(next.isTomorrows);
    EXPECT_EQ(next.remainingSeconds, 3600.0);
    EXPECT_EQ(next.moment.hours, 24.25);
}

TEST(ShortNight, YesterdaysIshaStillLiesAheadBehindMidnight) {
    const DayView day = ShortNightAt(0, 10);
    ASSERT_EQ(day.late.size(), 1U);
    EXPECT_EQ(day.late[0].prayer, kIsha);
    EXPECT_EQ(day.late[0].moment, (Moment{0.25, MomentBy::kRule}));
    EXPECT_EQ(day.next.prayer, 5);
    EXPECT_EQ(day.next.moment.hours, 0.25);
    EXPECT_EQ(day.next.moment.dayShift, 0);
    EXPECT_EQ(day.next.remainingSeconds, 300.0);
    EXPECT_EQ(OwnNext(day).day, At(0, 0, 0) - 1.0);
    EXPECT_EQ(OwnNext(day).moment.hours, 24.25);
}

TEST(ShortNight, TomorrowsFajrBeforeMidnightIsOfTodaysClock) {
    DayMoments tomorrow = Moments();
    tomorrow[kFajr] = {-0.5, MomentBy::kRule, -1};
    const DayView day =
        MakeDayView({"Oslo", Moments(), tomorrow, Moments(), {}, 0.0}, At(23, 0, 0));
    EXPECT_TRUE(day.next.isTomorrows);
    EXPECT_EQ(day.next.moment.dayShift, 0);
    EXPECT_EQ(day.next.remainingSeconds, 1800.0);
}

/// The sun sets four minutes past midnight.
TEST(ShortNight, MaghribBehindMidnightComesBeforeItsIsha) {
    DayMoments moments = Moments();
    moments[kMaghrib].hours = 24.0 + 4.0 / 60.0;
    moments[kIsha].hours = 24.5;
    const DaySource source = {"Reykjavik", moments, moments, moments, {}, 0.0};
    const DayView day = MakeDayView(source, At(0, 1, 0));
    EXPECT_EQ(day.next.prayer, 4);
    EXPECT_EQ(day.next.remainingSeconds, 180.0);
    ASSERT_EQ(day.late.size(), 2U);
    EXPECT_EQ(day.late[0].prayer, kMaghrib);
    EXPECT_EQ(MakeDayView(source, At(0, 4, 0)).next.prayer, 5);
}

TEST(ShortNight, BehindItComesFajr) {
    const NextMoment next = ShortNightAt(0, 15).next;
    EXPECT_EQ(next.prayer, 0);
    EXPECT_FALSE(next.isTomorrows);
    EXPECT_EQ(next.remainingSeconds, 75 * 60.0);
}

/// Fajr ten minutes before midnight, by the middle of the night in the east of a wide zone.
DayView EarlyFajrAt(int hour, int minute) {
    DayMoments moments = Moments();
    moments[kFajr].hours = -1.0 / 6.0;
    return MakeDayView({"East", moments, moments, moments, {}, 0.0}, At(hour, minute, 0));
}

TEST(ShortNight, FajrBeforeMidnightIsCountedDownToOnTheEveBefore) {
    const DayView day = EarlyFajrAt(23, 0);
    EXPECT_EQ(day.next.prayer, 0);
    EXPECT_TRUE(day.next.isTomorrows);
    EXPECT_EQ(day.next.remainingSeconds, 50 * 60.0);
    ASSERT_EQ(day.early.size(), 1U);
    EXPECT_NEAR(day.early[0].moment.hours, 24.0 - 1.0 / 6.0, 1e-12);
}

TEST(ShortNight, BehindAFajrBeforeMidnightTheNextIsTomorrowsZuhr) {
    const NextMoment next = EarlyFajrAt(23, 55).next;
    EXPECT_EQ(next.prayer, 2);
    EXPECT_TRUE(next.isTomorrows);
    EXPECT_EQ(next.remainingSeconds, 12 * 3600.0 + 300.0);
}

TEST(ShortNight, FajrThatWasYesterdayIsNotWaitedForAgain) {
    EXPECT_EQ(EarlyFajrAt(0, 5).next.prayer, 2);
}

}  // namespace
}  // namespace horavex
