#include <gtest/gtest.h>

#include "engine/angle.h"
#include "engine/around_day.h"
#include "engine/moments.h"
#include "engine/solar_event.h"

namespace horavex {
namespace {

constexpr double kMinute = 1.0 / 60.0;
constexpr int kUsualImsak = 10;

/// A place without daylight saving, whose rules a test may change.
struct Place {
    Place(double latitude, double longitude, double zone, HighLatitudeRule rule)
        : inputs{2026,
                 {DegToRad(latitude), -DegToRad(longitude), zone},
                 {18.0, 18.0, 1.0, 0, 0, 0, rule == HighLatitudeRule::kNone,
                  rule == HighLatitudeRule::kNone}},
          times(CalculateYear(inputs).times) {
        rules.highLatitude = rule;
    }

    YearSource Year() const { return {inputs, times, rules}; }
    AroundMoments Around(std::size_t row) const { return AroundOf(Year(), row, kUsualImsak); }
    DayMoments Moments(std::size_t row) const { return MomentsOf(Year(), row); }

    YearInputs inputs;
    YearTimes times;
    MomentRules rules;
};

Place Cairo() {
    return {30.05, 31.25, 2.0, HighLatitudeRule::kNone};
}

Place Oslo() {
    return {59.91, 10.75, 2.0, HighLatitudeRule::kMiddle};
}

TEST(AroundTheDay, ImsakIsBeforeFajrAndDuhaBehindSunrise) {
    const Place cairo = Cairo();
    const AroundMoments around = cairo.Around(100);
    EXPECT_NEAR(around[kImsak].hours, cairo.Moments(100)[kFajr].hours - 10 * kMinute, 1e-9);
    EXPECT_NEAR(around[kDuha].hours, cairo.Moments(100)[kShurooq].hours + 15 * kMinute, 1e-9);
    EXPECT_NEAR(AroundOf(cairo.Year(), 100, 25)[kImsak].hours, around[kImsak].hours - 0.25, 1e-9);
}

TEST(AroundTheDay, NightIsFromMaghribToTheNextFajr) {
    const Place cairo = Cairo();
    const double maghrib = cairo.Moments(100)[kMaghrib].hours;
    const double fajr = cairo.Moments(101)[kFajr].hours + 24.0;
    const AroundMoments around = cairo.Around(100);
    EXPECT_NEAR(around[kMiddleOfNight].hours, (maghrib + fajr) / 2.0, 1e-9);
    EXPECT_NEAR(around[kLastThird].hours, (maghrib + 2.0 * fajr) / 3.0, 1e-9);
    EXPECT_EQ(around[kLastThird].dayShift, 1);
    EXPECT_EQ(around[kMiddleOfNight].dayShift, 0);
}

TEST(AroundTheDay, NightOfTheLastDayIsAsLongAsTheOneBefore) {
    const Place cairo = Cairo();
    const auto length = [&](std::size_t row) {
        const AroundMoments around = cairo.Around(row);
        return around[kLastThird].hours - around[kMiddleOfNight].hours;
    };
    EXPECT_NEAR(length(364), length(363), 1e-9);
}

TEST(AroundTheDay, LastNightButOneOfALeapYearIsItsOwn) {
    Place cairo = Cairo();
    cairo.inputs.year = 2028;
    cairo.times = CalculateYear(cairo.inputs).times;
    const double maghrib = cairo.Moments(364)[kMaghrib].hours;
    const double fajr = cairo.Moments(365)[kFajr].hours + 24.0;
    EXPECT_NEAR(cairo.Around(364)[kMiddleOfNight].hours, (maghrib + fajr) / 2.0, 1e-9);
}

TEST(AroundTheDay, MinutesOfThePrayersCountInThem) {
    Place cairo = Cairo();
    const AroundMoments plain = cairo.Around(100);
    cairo.rules.offsets[kFajr] = 6;
    const AroundMoments moved = cairo.Around(100);
    EXPECT_NEAR(moved[kImsak].hours, plain[kImsak].hours + 6 * kMinute, 1e-9);
    EXPECT_NEAR(moved[kMiddleOfNight].hours, plain[kMiddleOfNight].hours + 3 * kMinute, 1e-9);
}

TEST(AroundTheDay, ChangeOfTheClockInTheNightMovesWhatLiesBehindIt) {
    Place cairo = Cairo();
    const Date evening = DateSerial(2026, 4, 11);  // row 100
    const AroundMoments plain = cairo.Around(100);
    cairo.rules.zone = {{evening - 100.0, 2.0}, {evening + 22.5 / 24.0, 3.0}};
    const AroundMoments around = cairo.Around(100);
    EXPECT_NEAR(around[kMiddleOfNight].hours, plain[kMiddleOfNight].hours, 1e-9);
    EXPECT_NEAR(around[kLastThird].hours, plain[kLastThird].hours + 1.0, 1e-9);
}

TEST(AroundTheDay, StandingOnAPrayerByARuleTheyAreByARule) {
    const AroundMoments around = Oslo().Around(171);
    EXPECT_EQ(around[kImsak].by, MomentBy::kRule);
    EXPECT_EQ(around[kDuha].by, MomentBy::kInterval);
    EXPECT_EQ(around[kMiddleOfNight].by, MomentBy::kRule) << "the next Fajr ends the night";
    EXPECT_EQ(around[kLastThird].by, MomentBy::kRule);
    EXPECT_EQ(Oslo().Around(0)[kLastThird].by, MomentBy::kInterval);
}

// Many days there have a Fajr, and few a sunset.
TEST(AroundTheDay, NightWithoutASunsetHasNoParts) {
    const Place far = {89.5, 10.0, 1.0, HighLatitudeRule::kNearest};
    for (std::size_t row = 0; row < 365; row += 7) {
        const double hours = far.Around(row)[kLastThird].hours;
        EXPECT_TRUE(hours == NoEvent || hours < 36.0) << row << " " << hours;
    }
}

}  // namespace
}  // namespace horavex
