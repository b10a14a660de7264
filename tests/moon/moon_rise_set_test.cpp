#include "moon/moon_rise_set.h"

#include "base/fault.h"
#include "moon/moon_position.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

constexpr MoonObserver kCairo{30, 3, 31, 15};

MoonRiseSet Folded(double rise, double set) {
    MoonRiseSet times{{10, 20, rise}, {11, 40, set}};
    FoldSeconds(times);
    return times;
}

// Ecliptic 139 deg 41' 10'', latitude 4 deg 52' 31'', turned with the obliquity of 1980, is the
// book's 9h 34m 53.6s and 19 deg 32' 14''; the obliquity here is that of 1990.
TEST(MoonPlaceTest, EclipticTurnsIntoEquatorial) {
    const EquatorialParts place = EclipticToEquatorial({139, 41, 10.0}, {4, 52, 31.0});
    EXPECT_EQ(place.rightAscension.whole, 9);
    EXPECT_EQ(place.rightAscension.minutes, 34);
    EXPECT_NEAR(place.rightAscension.seconds, 53.6, 0.3);
    EXPECT_EQ(place.declination.whole, 19);
    EXPECT_EQ(place.declination.minutes, 32);
    EXPECT_NEAR(place.declination.seconds, 14.0, 10.0);
}

TEST(MoonPlaceTest, NegativeDeclinationIsFlooredWithPositiveParts) {
    const EquatorialParts place = EclipticToEquatorial({300, 0, 0.0}, {0, 0, 0.0});
    EXPECT_EQ(place.declination.whole, -21);
    EXPECT_GE(place.declination.minutes, 0);
    EXPECT_NEAR(ClockToDecimal(place.declination), -20.1495, 1e-3);
}

TEST(MoonPlaceTest, LongitudeOnAnAxisIsAFault) {
    EXPECT_THROW(EclipticToEquatorial({90, 0, 0.0}, {0, 0, 0.0}), DivisionByZeroFault);
}

// The book's example: 1 September 2003, 0 hours, moon at longitude 214.86, latitude 1.72 degrees.
TEST(MoonPlaceTest, MoonOfSeptember2003) {
    const MoonPlace moon = MoonPosition(0.0, {2003, 9, 1});
    EXPECT_NEAR(WrapRange(moon.longitude, 0.0, 360.0), 214.86, 0.02);
    EXPECT_NEAR(moon.latitude, 1.72, 0.01);
    EXPECT_NEAR(moon.rightAscension, 14.21, 0.01);
    EXPECT_NEAR(moon.declination, -11.53, 0.02);
    EXPECT_NEAR(moon.sunLongitude, 158.17, 0.05);
}

TEST(MoonPlaceTest, SizeAndParallaxGoTogether) {
    // Near the Earth at the end of that summer: half a degree wide, parallax near a degree.
    const MoonSize size = MoonSizeAndParallax({1979, 9, 6});
    EXPECT_EQ(size.diameter.whole, 0);
    EXPECT_EQ(size.diameter.minutes, 32);
    EXPECT_EQ(ClockToDecimal(size.parallax), 1.005925);
    EXPECT_NEAR(ClockToDecimal(size.parallax) / ClockToDecimal(size.diameter), 0.9507 / 0.5181,
                1e-5);
}

TEST(MoonRiseSetTest, SetLosesItsSecondsUnlessTheyAreExactly30) {
    EXPECT_EQ(Folded(40.0, 29.99).set.second, 0.0);
    EXPECT_EQ(Folded(40.0, 29.99).set.minute, 40);
    EXPECT_EQ(Folded(40.0, 30.01).set.second, 0.0);
    EXPECT_EQ(Folded(40.0, 30.01).set.minute, 41);
    EXPECT_EQ(Folded(40.0, 30.0).set.second, 30.0);
    EXPECT_EQ(Folded(40.0, 30.0).set.minute, 40);
}

TEST(MoonRiseSetTest, RiseBelow30KeepsItsSecondsAndClearsTheSets) {
    const MoonRiseSet times = Folded(12.34, 30.0);
    EXPECT_EQ(times.rise.second, 12.34);
    EXPECT_EQ(times.rise.minute, 20);
    EXPECT_EQ(times.set.second, 0.0);
}

TEST(MoonRiseSetTest, RiseAbove30BecomesAMinute) {
    const MoonRiseSet times = Folded(30.01, 0.0);
    EXPECT_EQ(times.rise.second, 0.0);
    EXPECT_EQ(times.rise.minute, 21);
    EXPECT_EQ(Folded(30.0, 0.0).rise.second, 30.0);
}

TEST(MoonRiseSetTest, SixtyMinutesBecomeAnHourThatIsNotWrapped) {
    MoonRiseSet times{{23, 59, 45.0}, {23, 59, 31.0}};
    FoldSeconds(times);
    EXPECT_EQ(times.rise.hour, 24);
    EXPECT_EQ(times.rise.minute, 0);
    EXPECT_EQ(times.set.hour, 24);
    EXPECT_EQ(times.set.minute, 0);
}

TEST(MoonRiseSetTest, ZoneMayLoseAMinute) {
    MoonClock time{10, 8, 5.0};
    MoveByZone(time, 0.0);
    EXPECT_EQ(time.hour, 10);
    EXPECT_EQ(time.minute, 7);
    EXPECT_EQ(time.second, 5.0) << "the seconds stay";
}

TEST(MoonRiseSetTest, ZoneWrapsByOneDay) {
    MoonClock late{23, 30, 0.0};
    MoveByZone(late, 2.0);
    EXPECT_EQ(late.hour, 1);
    EXPECT_EQ(late.minute, 30);
    MoonClock early{1, 30, 0.0};
    MoveByZone(early, -5.0);
    EXPECT_EQ(early.hour, 20);
    MoonClock exact{22, 0, 0.0};
    MoveByZone(exact, 2.0);
    EXPECT_EQ(exact.hour, 24) << "24 itself is not wrapped";
}

TEST(MoonRiseSetTest, CairoInNovember2026) {
    const MoonRiseSet times = MoonRiseSetTimes({2026, 11, 21}, kCairo, 2.0);
    EXPECT_EQ(times.rise.hour, 14);
    EXPECT_EQ(times.rise.minute, 30);
    EXPECT_EQ(times.rise.second, 10.98);
    EXPECT_EQ(times.set.hour, 2);
    EXPECT_EQ(times.set.minute, 52);
    EXPECT_EQ(times.set.second, 0.0);
}

TEST(MoonRiseSetTest, MinutesOfALatitudeCountForNextToNothing) {
    const CivilDate day{2026, 11, 14};
    const MoonRiseSet whole = MoonRiseSetTimes(day, {55, 0, 31, 15}, 2.0);
    const MoonRiseSet nearly = MoonRiseSetTimes(day, {55, 59, 31, 15}, 2.0);
    const MoonRiseSet next = MoonRiseSetTimes(day, {56, 0, 31, 15}, 2.0);
    const auto minutes = [](const MoonClock& time) { return time.hour * 60 + time.minute; };
    EXPECT_EQ(minutes(whole.rise), 12 * 60 + 37);
    EXPECT_EQ(minutes(nearly.rise), 12 * 60 + 37);
    EXPECT_EQ(minutes(next.rise), 12 * 60 + 45);
}

TEST(MoonRiseSetTest, SetNeverHasSecondsButThirtyOverAYear) {
    int risesWithSeconds = 0;
    for (int day = 1; day <= 366; ++day) {
        const MoonRiseSet times =
            MoonRiseSetTimes(CivilFromDate(DateSerial(2028, 1, day)), kCairo, 2.0);
        EXPECT_TRUE(times.set.second == 0.0 || times.set.second == 30.0) << day;
        EXPECT_LE(times.rise.second, 30.0) << day;
        risesWithSeconds += times.rise.second > 0.0 ? 1 : 0;
    }
    EXPECT_GT(risesWithSeconds, 100);
}

TEST(MoonRiseSetTest, NearAPoleItIsAFault) {
    EXPECT_THROW(MoonRiseSetTimes({2026, 11, 21}, {90, 0, 0, 0}, 0.0), Fault);
    EXPECT_THROW(MoonRiseSetTimes({2026, 11, 21}, {-90, 0, 0, 0}, 0.0), Fault);
}

TEST(MoonRiseSetTest, MoonThatDoesNotSetIsASquareRootFault) {
    EXPECT_THROW(MoonRiseSetSidereal({20, 0, 0.0}, {6, 0, 0.0}, 80), SquareRootFault);
}

TEST(MoonRiseSetTest, SiderealTimesStandAroundTheRightAscension) {
    const SiderealRiseSet onEquator = MoonRiseSetSidereal({0, 0, 0.0}, {7, 0, 0.0}, 30);
    EXPECT_NEAR(onEquator.rise, 1.0, 1e-5);
    EXPECT_NEAR(onEquator.set, 13.0, 1e-5);
}

TEST(MoonRiseSetTest, TextsArePlainAndUnpadded) {
    const TestPlatform platform;
    const MoonRiseSet times{{5, 7, 9.25}, {18, 0, 0.0}};
    EXPECT_EQ(MoonRiseText(times), "Moon Rise at:5:7:9.25");
    EXPECT_EQ(MoonSetText(times), "Moon Set at:18:0:0");
    EXPECT_EQ(MoonErrorText(), "Input Error");
}

TEST(MoonRiseSetTest, DaylightHourIsNotWrapped) {
    MoonRiseSet times{{23, 10, 0.0}, {5, 0, 0.0}};
    AddDaylightHour(times);
    EXPECT_EQ(times.rise.hour, 24);
    EXPECT_EQ(times.set.hour, 6);
}

}  // namespace
}  // namespace horavex
