#include "engine/solar_event.h"

#include <cmath>

#include "base/fault.h"
#include "engine/angle.h"

namespace horavex {
namespace {

struct SolarEventTest : testing::Test {
    /// The sun of 2001 from a place, degrees.
    void Stand(double latitude, double longitude, double zone) {
        constants = YearConstantsOf(2001);
        place = {DegToRad(latitude), -DegToRad(longitude), zone};
    }

    double Transit(std::int16_t day) { return SolarTransit(constants, place, day, gap); }

    double Event(std::int16_t day, double zenith, double guess) const {
        return EventTime(constants, place, day, zenith, guess);
    }

    YearConstants constants;  // all 0 until it stands: the sun lies at the vernal equinox
    YearPlace place;
    double gap = 0.0;
};

constexpr double kHorizon = 90.83;

TEST_F(SolarEventTest, TransitGivesTheGapToTheDeclination) {
    Stand(30.05, 31.25, 2.0);
    EXPECT_NEAR(Transit(80), 12.0366, 5e-5);
    EXPECT_NEAR(RadToDeg(gap), 30.05 - 0.2, 0.2);
    Stand(-30.05, 31.25, 2.0);
    Transit(80);
    EXPECT_NEAR(RadToDeg(gap), 30.05 + 0.2, 0.2);
}

// Zones that are whole days apart: one turn to either side is folded away, a second one stays.
TEST_F(SolarEventTest, TransitWrapsByOneTurnAtMost) {
    Stand(30.05, 31.25, 2.0);
    int onTheDial = 0;
    double former = -1000.0;
    for (int turn = -4; turn <= 4; ++turn) {
        place.timeZone = 2.0 + 24.0 * turn;
        const double here = Transit(80);
        EXPECT_NEAR(FloatMod(here, 24.0), 12.0366, 5e-5);
        EXPECT_GE(here, former - 1e-9);
        onTheDial += here >= 0.0 && here <= 24.0 ? 1 : 0;
        former = here;
    }
    EXPECT_EQ(onTheDial, 3);
}

// With all constants 0 the sun stands at right ascension 0 on the equator, and its transit is the
// zone itself.
TEST_F(SolarEventTest, TransitAtExactlyNothingOrTwentyFourStays) {
    for (const double zone : {0.0, 24.0}) {
        place.timeZone = zone;
        EXPECT_EQ(Transit(1), zone);
    }
    place.timeZone = 24.5;
    EXPECT_EQ(Transit(1), 0.5);
    place.timeZone = -0.5;
    EXPECT_EQ(Transit(1), 23.5);
}

TEST_F(SolarEventTest, EventAtExactlyNothingOrTwentyFourStays) {
    const double zenith = DegToRad(60.0);
    const double evening = Event(1, zenith, 12.0);
    ASSERT_NEAR(evening, 4.0, 1e-9);
    for (const double hour : {0.0, 24.0}) {
        place.timeZone = hour - evening;
        ASSERT_EQ(evening + place.timeZone, hour);
        EXPECT_EQ(Event(1, zenith, 12.0), hour);
    }
}

TEST_F(SolarEventTest, GuessBelowTwelveAsksForTheMorning) {
    Stand(30.05, 31.25, 2.0);
    const double zenith = DegToRad(kHorizon);
    EXPECT_NEAR(Event(80, zenith, 11.9), 5.96, 0.02);
    EXPECT_NEAR(Event(80, zenith, 12.0), 18.11, 0.02);
}

TEST_F(SolarEventTest, SunIsTakenAtTheMomentOfTheGuess) {
    Stand(30.05, 31.25, 2.0);
    const double zenith = DegToRad(kHorizon);
    EXPECT_NE(Event(80, zenith, 5.0), Event(80, zenith, 6.0));
    EXPECT_NEAR(Event(80, zenith, 5.0), Event(80, zenith, 6.0), 0.01);
}

TEST_F(SolarEventTest, SunThatNeverGetsThereIsNoEvent) {
    Stand(51.5, -0.12, 0.0);
    EXPECT_EQ(Event(143, DegToRad(108.0), 4.0), NoEvent);  // dawn of 18 degrees in May
    EXPECT_EQ(NoEvent, 10000000.0);
    Stand(80.0, 0.0, 0.0);
    EXPECT_EQ(Event(172, DegToRad(kHorizon), 6.0), NoEvent);  // midnight sun
    EXPECT_EQ(Event(355, DegToRad(kHorizon), 6.0), NoEvent);  // polar night
}

TEST_F(SolarEventTest, NegativeHourGetsOneTurn) {
    Stand(30.05, 31.25, -6.0);  // eight hours behind the sun: the dawn falls before midnight
    const double dawn = Event(80, DegToRad(kHorizon), 6.0);
    EXPECT_NEAR(dawn, 5.96 - 8.0 + 24.0, 0.03);
}

TEST_F(SolarEventTest, SunThatTouchesTheZenithIsAReportedFault) {
    EXPECT_THROW(Event(0, 0.0, 6.0), DivisionByZeroFault);  // it stands at the zenith itself
}

struct BesideTest : SolarEventTest {
    double Beside(std::int16_t day, double zenith, DayHalf half) {
        return EventBeside(constants, EventPlaceOf(place), day, std::cos(DegToRad(zenith)),
                           Transit(day), half);
    }

    bool IsNear(std::int16_t day, double zenith, DayHalf half, double hours) {
        return IsNearEventBeside(constants, EventPlaceOf(place), day, std::cos(DegToRad(zenith)),
                                 Transit(day), half, hours);
    }
};

// From pole to pole, through the twilights and to an Asr: nothing counts as near that is not.
TEST_F(BesideTest, WhatCountsAsNearLiesWithinATenthOfAnHour) {
    for (double latitude = -90.0; latitude <= 90.0; latitude += 1.5) {
        Stand(latitude, 31.25, 2.0);
        for (std::int16_t day = 1; day <= 366; day = static_cast<std::int16_t>(day + 5)) {
            for (const double zenith : {45.0, 70.0, kHorizon, 102.0, 108.5, 110.0}) {
                for (const DayHalf half : {DayHalf::kMorning, DayHalf::kEvening}) {
                    const double event = Beside(day, zenith, half);
                    for (double apart = -0.5; apart <= 0.5; apart += 0.05) {
                        const double guess = (IsEvent(event) ? event : Transit(day)) + apart;
                        const bool isNear = IsNear(day, zenith, half, guess);
                        ASSERT_TRUE(!isNear || std::fabs(guess - event) < 0.1)
                            << latitude << " " << day << " " << zenith << " " << apart;
                    }
                }
            }
        }
    }
}

TEST_F(BesideTest, EventOfYesterdayCountsAsNearWhereMostPeopleLive) {
    for (const double latitude : {-35.0, 0.0, 21.43, 30.05, 40.0}) {
        Stand(latitude, 31.25, 2.0);
        for (std::int16_t day = 2; day <= 365; ++day) {
            for (const double zenith : {kHorizon, 108.0}) {
                const auto before = static_cast<std::int16_t>(day - 1);
                EXPECT_TRUE(IsNear(day, zenith, DayHalf::kMorning,
                                   Beside(before, zenith, DayHalf::kMorning)))
                    << latitude << " " << day << " " << zenith;
            }
        }
    }
}

TEST_F(BesideTest, OtherHalfOfTheDayAndAnotherDayAreNotNear) {
    Stand(30.05, 31.25, 2.0);
    const double sunset = Beside(80, kHorizon, DayHalf::kEvening);
    EXPECT_TRUE(IsNear(80, kHorizon, DayHalf::kEvening, sunset));
    EXPECT_FALSE(IsNear(80, kHorizon, DayHalf::kMorning, sunset));
    EXPECT_FALSE(IsNear(80, kHorizon, DayHalf::kEvening, sunset - 24.0));
}

}  // namespace
}  // namespace horavex
