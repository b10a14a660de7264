#include "engine/solar_event.h"

#include <cmath>

#include "engine/angle.h"
#include "engine/sample_year.h"
#include "engine/sun.h"

namespace horavex {
namespace {

struct SolarEventTest : EngineTest {
    /// The engine's own place, without a run over the year.
    void Stand(double latitude, double longitude, double zone) {
        ComputeYearConstants(2001);
        LatitudeRad = DegToRad(latitude);
        LongitudeWestRad = -DegToRad(longitude);
        Settings.TimeZone = zone;
    }
};

constexpr double kHorizon = 90.83;

TEST_F(SolarEventTest, TransitGivesTheGapToTheDeclination) {
    Stand(30.05, 31.25, 2.0);
    double gap = 0.0;
    EXPECT_NEAR(SolarTransit(80, gap), 12.0366, 5e-5);
    EXPECT_NEAR(RadToDeg(gap), 30.05 - 0.2, 0.2);
    Stand(-30.05, 31.25, 2.0);
    SolarTransit(80, gap);
    EXPECT_NEAR(RadToDeg(gap), 30.05 + 0.2, 0.2);
}

// Zones that are whole days apart: one turn to either side is folded away, a second one stays.
TEST_F(SolarEventTest, TransitWrapsByOneTurnAtMost) {
    Stand(30.05, 31.25, 2.0);
    double gap = 0.0;
    int onTheDial = 0;
    double former = -1000.0;
    for (int turn = -4; turn <= 4; ++turn) {
        Settings.TimeZone = 2.0 + 24.0 * turn;
        const double here = SolarTransit(80, gap);
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
    double gap = 0.0;
    for (const double zone : {0.0, 24.0}) {
        Settings.TimeZone = zone;
        EXPECT_EQ(SolarTransit(1, gap), zone);
    }
    Settings.TimeZone = 24.5;
    EXPECT_EQ(SolarTransit(1, gap), 0.5);
    Settings.TimeZone = -0.5;
    EXPECT_EQ(SolarTransit(1, gap), 23.5);
}

TEST_F(SolarEventTest, EventAtExactlyNothingOrTwentyFourStays) {
    const double zenith = DegToRad(60.0);
    const double evening = EventTime(1, zenith, 12.0);
    ASSERT_NEAR(evening, 4.0, 1e-9);
    for (const double hour : {0.0, 24.0}) {
        Settings.TimeZone = hour - evening;
        ASSERT_EQ(evening + Settings.TimeZone, hour);
        EXPECT_EQ(EventTime(1, zenith, 12.0), hour);
    }
}

TEST_F(SolarEventTest, GuessBelowTwelveAsksForTheMorning) {
    Stand(30.05, 31.25, 2.0);
    const double zenith = DegToRad(kHorizon);
    EXPECT_NEAR(EventTime(80, zenith, 11.9), 5.96, 0.02);
    EXPECT_NEAR(EventTime(80, zenith, 12.0), 18.11, 0.02);
}

TEST_F(SolarEventTest, SunIsTakenAtTheMomentOfTheGuess) {
    Stand(30.05, 31.25, 2.0);
    const double zenith = DegToRad(kHorizon);
    EXPECT_NE(EventTime(80, zenith, 5.0), EventTime(80, zenith, 6.0));
    EXPECT_NEAR(EventTime(80, zenith, 5.0), EventTime(80, zenith, 6.0), 0.01);
}

TEST_F(SolarEventTest, SunThatNeverGetsThereIsNoEvent) {
    Stand(51.5, -0.12, 0.0);
    EXPECT_EQ(EventTime(143, DegToRad(108.0), 4.0), NoEvent);  // dawn of 18 degrees in May
    EXPECT_EQ(NoEvent, 10000000.0);
    Stand(80.0, 0.0, 0.0);
    EXPECT_EQ(EventTime(172, DegToRad(kHorizon), 6.0), NoEvent);  // midnight sun
    EXPECT_EQ(EventTime(355, DegToRad(kHorizon), 6.0), NoEvent);  // polar night
}

TEST_F(SolarEventTest, NegativeHourGetsOneTurn) {
    Stand(30.05, 31.25, -6.0);  // eight hours behind the sun: the dawn falls before midnight
    const double dawn = EventTime(80, DegToRad(kHorizon), 6.0);
    EXPECT_NEAR(dawn, 5.96 - 8.0 + 24.0, 0.03);
}

}  // namespace
}  // namespace horavex
