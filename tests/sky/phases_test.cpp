// Published instants: U.S. Naval Observatory, Astronomical Applications Department, and the
// examples of J. Meeus, Astronomical Algorithms (second edition), chapters 48 and 49.

#include "sky/phases.h"

#include <gtest/gtest.h>

#include "linux/erfa_almanac.h"
#include "platform/even_almanac.h"

namespace horavex {
namespace {

constexpr double kMinute = 1.0 / (24.0 * 60.0);

Date At(int year, int month, int day, int hour, int minute) {
    return DateSerial(year, month, day) + TimeSerial(hour, minute, 0);
}

TEST(Phases, AreQuartersOfTheWayFromSunToSun) {
    EvenAlmanac almanac;
    almanac.start = 40000.0;
    almanac.moonStart = 350.0;
    almanac.sunPace = 1.0;
    almanac.moonPace = 11.0;
    const auto phases = PhasesBetween(almanac, 40000.0, 40036.0);
    ASSERT_EQ(phases.size(), 4U);
    for (std::size_t i = 0; i < phases.size(); ++i) {
        EXPECT_EQ(phases[i].phase, static_cast<Phase>(i));
        EXPECT_NEAR(phases[i].universal, 40001.0 + 9.0 * static_cast<double>(i), kMinute / 60.0);
    }
}

TEST(Phases, AgreeWithPublishedInstantsToTheMinute) {
    const PhaseInstant published[] = {
        {Phase::kNewMoon, At(1977, 2, 18, 3, 37)},  {Phase::kNewMoon, At(2000, 1, 6, 18, 14)},
        {Phase::kNewMoon, At(2024, 4, 8, 18, 21)},  {Phase::kFullMoon, At(2025, 3, 14, 6, 55)},
        {Phase::kNewMoon, At(2026, 2, 17, 12, 1)},  {Phase::kFullMoon, At(2026, 3, 3, 11, 38)},
        {Phase::kNewMoon, At(2026, 8, 12, 17, 37)}, {Phase::kLastQuarter, At(2044, 1, 21, 23, 47)},
    };
    const ErfaAlmanac almanac;
    for (const PhaseInstant& row : published) {
        const auto found = PhasesBetween(almanac, row.universal - 2.0, row.universal + 2.0);
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found[0].phase, row.phase);
        EXPECT_NEAR((found[0].universal - row.universal) / kMinute, 0.0, 1.2);
    }
}

TEST(Phases, OfEveryYearHaveNoGap) {
    const ErfaAlmanac almanac;
    const auto phases = PhasesBetween(almanac, DateSerial(1950, 1, 1), DateSerial(1954, 1, 1));
    for (std::size_t i = 1; i < phases.size(); ++i) {
        const int next = (static_cast<int>(phases[i - 1].phase) + 1) % 4;
        EXPECT_EQ(phases[i].phase, static_cast<Phase>(next));
        EXPECT_NEAR(phases[i].universal - phases[i - 1].universal, 7.4, 1.0);
    }
}

TEST(LitPart, IsThatOfThePublishedExample) {
    const ErfaAlmanac almanac;
    const Date midnight = DateSerial(1992, 4, 12);
    const CelestialPlace sun = almanac.SunAt(midnight);
    const CelestialPlace moon = almanac.MoonAt(midnight);
    EXPECT_NEAR(Elongation(sun, moon), 110.79, 0.02);
    EXPECT_NEAR(LitPart(sun, moon), 0.6786, 0.0003);
}

TEST(LitPart, IsNothingBesideTheSunAndAllOppositeToIt) {
    EvenAlmanac almanac;
    EXPECT_NEAR(LitPart(almanac.SunAt(0.0), almanac.MoonAt(0.0)), 0.0, 1e-12);
    almanac.moonStart = 180.0;
    EXPECT_NEAR(LitPart(almanac.SunAt(0.0), almanac.MoonAt(0.0)), 1.0, 1e-12);
}

}  // namespace
}  // namespace horavex
