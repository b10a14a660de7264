#include <cmath>

#include "lib/library.h"

namespace horavex {
namespace {

bool operator==(const horavex_date& one, const horavex_date& other) {
    return one.year == other.year && one.month == other.month && one.day == other.day;
}

horavex_date HijriOf(int calendar, int adjustment, const horavex_date& date) {
    horavex_date hijri = {0, 0, 0};
    EXPECT_EQ(horavex_hijri_of(calendar, adjustment, &date, &hijri, nullptr), HORAVEX_OK);
    return hijri;
}

horavex_status Back(int calendar, const horavex_date& hijri) {
    horavex_date date = {0, 0, 0};
    return horavex_date_of(calendar, 0, &hijri, &date, nullptr);
}

TEST(Hijri, CalendarsDiffer) {
    EXPECT_TRUE(HijriOf(HORAVEX_UMM_AL_QURA, 0, {2026, 8, 1}) == (horavex_date{1448, 2, 18}));
    EXPECT_TRUE(HijriOf(HORAVEX_ARITHMETIC, 0, {2026, 8, 1}) == (horavex_date{1448, 2, 16}));
    EXPECT_TRUE(HijriOf(HORAVEX_ARITHMETIC, 2, {2026, 8, 1}) == (horavex_date{1448, 2, 18}));
}

TEST(Hijri, PublishedMonthsEndAndTheArithmeticOnesGoOn) {
    for (const horavex_date date : {horavex_date{1900, 1, 1}, {2200, 1, 1}, {9999, 12, 31}}) {
        EXPECT_TRUE(HijriOf(HORAVEX_UMM_AL_QURA, 0, date) == HijriOf(HORAVEX_ARITHMETIC, 0, date));
    }
}

TEST(Hijri, EveryDateComesBack) {
    for (const int calendar : {HORAVEX_UMM_AL_QURA, HORAVEX_ARITHMETIC}) {
        for (const int adjustment : {-2, 0, 1}) {
            for (int year = 700; year < 9900; year += 97) {
                const horavex_date date = {year, year % 12 + 1, year % 28 + 1};
                const horavex_date hijri = HijriOf(calendar, adjustment, date);
                horavex_date back = {0, 0, 0};
                EXPECT_EQ(horavex_date_of(calendar, adjustment, &hijri, &back, nullptr),
                          HORAVEX_OK);
                EXPECT_TRUE(back == date) << year;
            }
        }
    }
}

TEST(Hijri, DatesThatAreNoneAreRefused) {
    horavex_date hijri = {0, 0, 0};
    for (const horavex_date date : {horavex_date{2026, 2, 29}, {2026, 13, 1}, {0, 1, 1}}) {
        EXPECT_EQ(horavex_hijri_of(HORAVEX_UMM_AL_QURA, 0, &date, &hijri, nullptr),
                  HORAVEX_BAD_ARGUMENT);
    }
    EXPECT_EQ(Back(HORAVEX_UMM_AL_QURA, {1447, 9, 30}), HORAVEX_OK);
    EXPECT_EQ(Back(HORAVEX_UMM_AL_QURA, {1447, 10, 30}), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(Back(HORAVEX_UMM_AL_QURA, {1447, 13, 1}), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(Back(HORAVEX_UMM_AL_QURA, {0, 1, 1}), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(Back(HORAVEX_ARITHMETIC, {9900, 1, 1}), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(Back(2, {1447, 1, 1}), HORAVEX_BAD_ARGUMENT);
}

TEST(Qibla, IsTheBearingFromNorthByEast) {
    double degrees = 0.0;
    ASSERT_EQ(horavex_qibla(30.05, 31.25, &degrees, nullptr), HORAVEX_OK);
    EXPECT_NEAR(degrees, 136.214, 0.001);
    ASSERT_EQ(horavex_qibla(-6.2, 106.8, &degrees, nullptr), HORAVEX_OK);
    EXPECT_NEAR(degrees, -64.9, 0.1);
}

// 2026-01-01 to 2027-01-01.
constexpr std::int64_t kBegin = 1767225600;
constexpr std::int64_t kEnd = 1798761600;

TEST(Moon, PhasesFollowEachOther) {
    std::size_t count = 0;
    ASSERT_EQ(horavex_moon_phases(kBegin, kEnd, nullptr, 0, &count, nullptr), HORAVEX_OK);
    ASSERT_EQ(count, 50U);
    std::vector<horavex_phase> phases(count);
    ASSERT_EQ(horavex_moon_phases(kBegin, kEnd, phases.data(), count, &count, nullptr), HORAVEX_OK);
    for (std::size_t i = 1; i < count; ++i) {
        EXPECT_EQ(phases[i].phase, (phases[i - 1].phase + 1) % 4);
        EXPECT_GT(phases[i].unix_time, phases[i - 1].unix_time);
    }
    // The eclipse of 12 August 2026: new moon at 17:37 in Greenwich.
    EXPECT_TRUE(std::any_of(phases.begin(), phases.end(), [](const horavex_phase& phase) {
        return phase.phase == HORAVEX_NEW_MOON && std::llabs(phase.unix_time - 1786556220) < 90;
    }));
}

TEST(Moon, PhasesFillNoMoreThanThereIsRoomFor) {
    horavex_phase phases[3] = {{}, {}, {42, 42, 42}};
    std::size_t count = 0;
    ASSERT_EQ(horavex_moon_phases(kBegin, kEnd, phases, 2, &count, nullptr), HORAVEX_OK);
    EXPECT_EQ(count, 50U);
    EXPECT_NE(phases[1].unix_time, 0);
    EXPECT_EQ(phases[2].unix_time, 42);
}

TEST(Moon, IsDarkAtNewMoonAndBrightAtFullMoon) {
    horavex_moon moon = HORAVEX_MOON_INIT;
    ASSERT_EQ(horavex_moon_at(30.05, 31.25, 1786556220, &moon, nullptr), HORAVEX_OK);
    EXPECT_LT(moon.lit_part, 0.001);
    EXPECT_LT(std::fabs(std::remainder(moon.ahead, 360.0)), 0.1);
    ASSERT_EQ(horavex_moon_at(30.05, 31.25, 1786556220 + 1275000, &moon, nullptr), HORAVEX_OK);
    EXPECT_GT(moon.lit_part, 0.99);
    EXPECT_GT(moon.age, 14.0);
    EXPECT_GT(moon.distance, 350000.0);
    EXPECT_LT(moon.distance, 410000.0);
}

TEST(Moon, StandsOnTheHorizonWhereItRisesAndSets) {
    horavex_moon_day day = HORAVEX_MOON_DAY_INIT;
    ASSERT_EQ(horavex_moon_rise_set(30.05, 31.25, kBegin, kBegin + 86400, &day, nullptr),
              HORAVEX_OK);
    ASSERT_EQ(day.rises + day.sets + day.transits, 3);
    for (const std::int64_t instant : {day.rise, day.set}) {
        horavex_moon moon = HORAVEX_MOON_INIT;
        ASSERT_EQ(horavex_moon_at(30.05, 31.25, instant, &moon, nullptr), HORAVEX_OK);
        EXPECT_NEAR(moon.altitude, -0.8, 0.1);
    }
}

TEST(Moon, InstantsOutsideTheAlmanacAreRefused) {
    horavex_moon moon = HORAVEX_MOON_INIT;
    horavex_moon_day day = HORAVEX_MOON_DAY_INIT;
    std::size_t count = 0;
    for (const std::int64_t far : {INT64_MIN, -2208988801L, 4133980801L, INT64_MAX}) {
        EXPECT_EQ(horavex_moon_at(0.0, 0.0, far, &moon, nullptr), HORAVEX_BAD_ARGUMENT);
        EXPECT_EQ(horavex_moon_phases(0, far, nullptr, 0, &count, nullptr), HORAVEX_BAD_ARGUMENT);
        EXPECT_EQ(horavex_moon_rise_set(0.0, 0.0, far, far, &day, nullptr), HORAVEX_BAD_ARGUMENT);
    }
    EXPECT_EQ(horavex_moon_phases(2, 1, nullptr, 0, &count, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_moon_rise_set(0.0, 0.0, 0, 3 * 86400, &day, nullptr), HORAVEX_BAD_ARGUMENT);
    EXPECT_EQ(horavex_moon_at(91.0, 0.0, 0, &moon, nullptr), HORAVEX_BAD_ARGUMENT);
}

}  // namespace
}  // namespace horavex
