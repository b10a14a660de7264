#include "sky/crescent.h"

#include <gtest/gtest.h>

#include "linux/erfa_almanac.h"
#include "sky/phases.h"
#include "sky/rise_set.h"

namespace horavex {
namespace {

constexpr Observer kMecca{21.4225, 39.8262}, kTromso{69.65, 18.96}, kReykjavik{64.15, -21.94};
constexpr double kMinutes = 24.0 * 60.0;  // a day

Date NewMoonNear(const Almanac& almanac, Date instant) {
    for (const PhaseInstant& phase : PhasesBetween(almanac, instant - 14.0, instant + 14.0)) {
        if (phase.phase == Phase::kNewMoon) {
            return phase.universal;
        }
    }
    return instant;
}

/// The evening of a day, whose noon is that of the place's mean sun.
std::optional<CrescentEvening> EveningOf(const Observer& observer, int year, int month, int day) {
    const ErfaAlmanac almanac;
    const Date noon = DateSerial(year, month, day) + 0.5 - observer.longitude / 360.0;
    return CrescentAfter(almanac, observer, noon, NewMoonNear(almanac, noon));
}

Date SunriseAfter(const Observer& observer, Date sunset) {
    return FirstSunrise(ErfaAlmanac(), observer, {sunset, sunset + 1.0}).value();
}

// Figures of PyEphem 4.1.4 for the same evening.
TEST(CrescentEvening, HasTheFiguresOfTheBestTime) {
    const CrescentEvening evening = EveningOf(kMecca, 2026, 2, 18).value();
    const Date day = DateSerial(2026, 2, 18);
    EXPECT_NEAR((evening.sunset - day) * kMinutes, 15 * 60 + 19.93, 0.1);
    EXPECT_NEAR((evening.moonset.value() - day) * kMinutes, 16 * 60 + 18.92, 0.1);
    EXPECT_NEAR(evening.Lag().value() * kMinutes, 58.98, 0.1);
    EXPECT_NEAR((evening.best - day) * kMinutes, 15 * 60 + 46.15, 0.1);
    EXPECT_NEAR(evening.age, 27.75, 0.02);
    EXPECT_NEAR(evening.moonAltitude, 6.450, 0.01);
    EXPECT_NEAR(evening.geocentric.light, 14.235, 0.01);
    EXPECT_NEAR(evening.geocentric.vision, 14.227, 0.01);
    EXPECT_NEAR(evening.topocentric.light, 13.284, 0.01);
    EXPECT_NEAR(evening.topocentric.vision, 13.275, 0.01);
    EXPECT_NEAR(evening.topocentric.azimuth, 0.500, 0.01);
    EXPECT_NEAR(evening.topocentric.width, 0.4212, 0.001);
}

TEST(CrescentEvening, IsSeenEasilyADayAfterItCouldNot) {
    const CrescentEvening first = EveningOf(kMecca, 2026, 2, 17).value();
    EXPECT_EQ(first.yallop.letter, 'F');
    EXPECT_EQ(first.odeh.letter, 'D');
    const CrescentEvening second = EveningOf(kMecca, 2026, 2, 18).value();
    EXPECT_EQ(second.yallop.letter, 'A');
    EXPECT_EQ(second.odeh.letter, 'A');
}

TEST(CrescentEvening, BeforeTheNewMoonHasAMoonThatSetsFirst) {
    const CrescentEvening evening = EveningOf(kMecca, 2026, 2, 16).value();
    EXPECT_LT(evening.Lag().value(), 0.0);
    EXPECT_EQ(evening.best, evening.sunset);
    EXPECT_LT(evening.age, 0.0);
    EXPECT_EQ(evening.yallop.letter, 'F');
    EXPECT_EQ(evening.odeh.letter, 'D');
}

TEST(CrescentEvening, IsNoneUnderTheMidnightSun) {
    EXPECT_FALSE(EveningOf(kTromso, 2026, 6, 15));
}

// In the autumn of the far north the moon sets twice within the day: at 20:45 and, here, at 20:18.
TEST(CrescentEvening, HasTheLastMoonsetBeforeTheSunset) {
    const CrescentEvening evening = EveningOf(kTromso, 2027, 8, 30).value();
    EXPECT_FALSE(evening.moonUp);
    EXPECT_NEAR(evening.Lag().value() * kMinutes, -17.0, 1.0);
}

TEST(CrescentEvening, OfAMoonThatStaysUpAllNightIsJudged) {
    const CrescentEvening evening = EveningOf(kReykjavik, 2025, 6, 25).value();
    EXPECT_TRUE(evening.moonUp);
    EXPECT_FALSE(evening.moonset);
    const Date night = SunriseAfter(kReykjavik, evening.sunset) - evening.sunset;
    EXPECT_NEAR(evening.best - evening.sunset, night * 4 / 9, 1e-9);
    EXPECT_EQ(KindOf(evening, DateSerial(2025, 6, 25) + TimeSerial(10, 32, 0)),
              EveningKind::kJudged);
}

// South of 60 degrees the December night is shorter than the moon's way behind the sun, and what is
// looked for in broad day is not seen: the shorter the night, the lower stands the moon over the
// sun at its best.
TEST(CrescentEvening, EndsWithTheNight) {
    double before = 90.0;
    for (double latitude = -58.0; latitude >= -65.0; latitude -= 0.5) {
        const Observer here{latitude, -100.0};
        const CrescentEvening evening = EveningOf(here, 2026, 12, 9).value();
        EXPECT_LT(evening.best, SunriseAfter(here, evening.sunset)) << latitude;
        EXPECT_LT(evening.geocentric.vision, before) << latitude;
        before = evening.geocentric.vision;
    }
}

TEST(KindOf, TellsEveningsThatAreNotJudged) {
    CrescentEvening evening{};
    evening.sunset = 100.0;
    evening.moonUp = true;
    EXPECT_EQ(KindOf(std::nullopt, 99.0), EveningKind::kNoSunset);
    EXPECT_EQ(KindOf(evening, 100.1), EveningKind::kBeforeNewMoon);
    EXPECT_EQ(KindOf(evening, 99.0), EveningKind::kJudged);
    evening.moonUp = false;
    EXPECT_EQ(KindOf(evening, 99.0), EveningKind::kMoonSetsFirst);
}

/// A sighting at the edge of what was ever seen, by its published date and place; the classes
/// allow it to the instrument that it took.
struct Sighting {
    const char* who;
    Observer place;
    int year, month, day;
    double age;  // hours at the best time, as the computation gives it; reports tell within an hour
    char yallop;
    char odeh;
};

constexpr Sighting kSightings[] = {
    {"Moran, Los Angeles, binoculars", {34.2, -118.1}, 1972, 3, 15, 14.7, 'C', 'B'},
    {"Pierce, Collins Gap, naked eye behind a telescope",
     {35.6, -83.5},
     1990,
     2,
     25,
     14.8,
     'D',
     'C'},
    {"Stamm, Tucson, telescope", {32.4, -111.0}, 1996, 1, 20, 12.2, 'D', 'C'},
    {"Mirsaeed, Zefreh, large binoculars", {33.0, 52.3}, 2002, 9, 7, 11.9, 'E', 'C'},
};

TEST(CrescentEvening, PutsFamousSightingsWhereOpticalAidIsNeeded) {
    for (const Sighting& row : kSightings) {
        const auto evening = EveningOf(row.place, row.year, row.month, row.day);
        EXPECT_NEAR(evening->age, row.age, 0.1) << row.who;
        EXPECT_EQ(evening->yallop.letter, row.yallop) << row.who << evening->yallop.value;
        EXPECT_EQ(evening->odeh.letter, row.odeh) << row.who << evening->odeh.value;
    }
}

}  // namespace
}  // namespace horavex
