#include "moon/moon_date.h"

#include "base/fault.h"
#include "support/test_platform.h"

namespace horavex {
namespace {

constexpr double kMidnight = 2451544.5;  // 1 January 2000
constexpr double kSecond = 1.0 / 86400.0;

struct MoonDateTest : testing::Test {
    void Zone(const char* text) { zone = WholeZone(text); }

    /// An hour of 1 January 2000, half a second on.
    MoonDate DateAt(double hour) const {
        double day = kMidnight + hour / 24.0 + kSecond / 2.0;
        return MoonDateFromDay(day, zone);
    }

    /// Date and clock of it.
    std::string At(double hour) const {
        const MoonDate date = DateAt(hour);
        return MoonDateText(date) + " " + MoonClockText(date, zone, 0);
    }

    double zone = 0.0;

    TestPlatform platform;
};

TEST_F(MoonDateTest, GreenwichDatesAsTheDayIs) {
    Zone("0");
    EXPECT_EQ(At(10.0), "1 January 2000 10hrs 0min");
    EXPECT_EQ(At(23.75), "1 January 2000 23hrs 45min");
}

TEST_F(MoonDateTest, ZoneEastCountsTwice) {
    Zone("2");
    EXPECT_EQ(At(10.0), "1 January 2000 14hrs 0min");
    EXPECT_NEAR(DateAt(10.0).MoonDay, 1.5, 1e-5);
}

TEST_F(MoonDateTest, ZoneWestMovesTheDateLaterToo) {
    Zone("-5");
    EXPECT_EQ(At(10.0), "1 January 2000 10hrs 0min");
    EXPECT_NEAR(DateAt(10.0).MoonDay, 1.0 + 15.0 / 24.0, 1e-5);
    EXPECT_EQ(At(20.0), "2 January 2000 3hrs 59min") << "1:00 less 5 hours, signless";
}

TEST_F(MoonDateTest, FractionsOfAZoneAreFloored) {
    Zone("5.5");
    EXPECT_EQ(At(1.0), "1 January 2000 11hrs 0min");
    Zone("-5.5");
    EXPECT_EQ(At(10.0), "1 January 2000 10hrs 0min");
    EXPECT_NEAR(DateAt(10.0).MoonDay, 1.0 + 16.0 / 24.0, 1e-5);
}

TEST_F(MoonDateTest, HoursBeyond24LoseADayThatTheDateDoesNotGain) {
    Zone("8");
    EXPECT_EQ(At(10.0), "1 January 2000 2hrs 0min");  // 18:00 and 8 hours more
}

TEST_F(MoonDateTest, HourOfExactly24Stays) {
    Zone("12");
    double day = kMidnight;
    EXPECT_EQ(MoonClockText(MoonDateFromDay(day, zone), zone, 0), "24hrs 0min");
}

TEST_F(MoonDateTest, JulianDayKeepsItsShift) {
    Zone("-6");
    double day = kMidnight;
    MoonDateFromDay(day, zone);
    EXPECT_EQ(day, kMidnight + 0.25 + 0.5);
}

TEST_F(MoonDateTest, NegativeDayLosesItsSign) {
    Zone("0");
    double day = -1000.25;
    MoonDateFromDay(day, zone);
    EXPECT_EQ(day, 1000.75);
}

TEST_F(MoonDateTest, CalendarTurnsAtTheReform) {
    Zone("0");
    const auto dateOf = [this](double julianDay) {
        return MoonDateText(MoonDateFromDay(julianDay, zone));
    };
    EXPECT_EQ(dateOf(2299159.5), "4 October 1582");
    EXPECT_EQ(dateOf(2299160.5), "15 October 1582");
    EXPECT_EQ(dateOf(2436116.31), "4 October 1957");
    EXPECT_EQ(dateOf(1842713.0), "27 January 333");
}

TEST_F(MoonDateTest, EveryDayOfTwoCenturiesComesOut) {
    Zone("0");
    for (Date date = DateSerial(1900, 1, 1); date < DateSerial(2101, 1, 1); date += 1.0) {
        double julianDay = date + 2415018.5;
        const MoonDate moon = MoonDateFromDay(julianDay, zone);
        const CivilDate civil = CivilFromDate(date);
        ASSERT_EQ(moon.MoonYear, civil.year) << date;
        ASSERT_EQ(moon.MoonMonth, civil.month) << date;
        ASSERT_EQ(moon.MoonDay, civil.day) << date;
    }
}

TEST_F(MoonDateTest, ClockHasItsBlanksAndNoPadding) {
    Zone("0");
    EXPECT_EQ(At(5.0), "1 January 2000 5hrs 0min");
    EXPECT_EQ(MoonClockText(DateAt(5.0), zone, 1), " 5hrs 0min");
}

TEST_F(MoonDateTest, WeekdayMovesItsDayOn) {
    double day = kMidnight;
    EXPECT_EQ(WeekDayText(day), "Saturday");
    EXPECT_EQ(day, kMidnight + 1.5);
    day = kMidnight + 1.0;
    EXPECT_EQ(WeekDayText(day), "Sunday");
    day = kMidnight + 6.0;
    EXPECT_EQ(WeekDayText(day), "Friday");
}

TEST_F(MoonDateTest, ZoneThatIsNoNumberIsAFault) {
    EXPECT_THROW(WholeZone("here"), TypeMismatchFault);
    EXPECT_THROW(WholeZone(""), TypeMismatchFault);
}

}  // namespace
}  // namespace horavex
