#include "sky/eclipse.h"

#include <gtest/gtest.h>

#include <cmath>
#include <iterator>

#include "linux/delta_t.h"
#include "linux/erfa_almanac.h"
#include "platform/even_almanac.h"
#include "sky/eclipse_canon.h"

namespace horavex {
namespace {

constexpr double kMinutes = 24.0 * 60.0;  // a day

/// The letter of the canon.
char LetterOf(EclipseKind kind) {
    return "NPAHT"[static_cast<int>(kind)];
}

/// What the canon tells of all eclipses alike, as Universal Time.
template <class Row>
Date GreatestOf(const Row& row) {
    const Date even =
        DateSerial(row.year, row.month, row.day) + TimeSerial(row.hour, row.minute, row.second);
    return even - DeltaT(even) / kSecondsPerDay;
}

std::vector<Eclipse> EclipsesOfThirtyYears(bool solar) {
    static const auto all =
        EclipsesBetween(ErfaAlmanac(), DateSerial(2001, 1, 1), DateSerial(2031, 1, 1));
    std::vector<Eclipse> eclipses = all;
    std::erase_if(eclipses, [=](const Eclipse& eclipse) { return eclipse.solar != solar; });
    return eclipses;
}

/// Degrees by which a place lies east of a longitude, as long as those of the equator.
double LongitudeOff(const Observer& place, double longitude) {
    return SignedDegrees(place.longitude - longitude) * std::cos(place.latitude * 3.14159 / 180.0);
}

TEST(SolarEclipses, AreAllThatTheCanonHas) {
    const auto eclipses = EclipsesOfThirtyYears(true);
    ASSERT_EQ(eclipses.size(), std::size(kCanonSolarEclipses));
    for (std::size_t i = 0; i < eclipses.size(); ++i) {
        const CanonSolarEclipse& row = kCanonSolarEclipses[i];
        SCOPED_TRACE(testing::Message() << row.year << "-" << row.month << "-" << row.day);
        EXPECT_EQ(LetterOf(eclipses[i].kind), row.kind);
        EXPECT_NEAR((eclipses[i].greatest - GreatestOf(row)) * kSecondsPerDay, 0.0, 20.0);
        EXPECT_NEAR(eclipses[i].gamma, row.gamma, 0.0011);
        EXPECT_NEAR(eclipses[i].magnitude, row.magnitude, 0.0027);
        EXPECT_NEAR(eclipses[i].place.latitude, row.latitude, 0.25);
        EXPECT_NEAR(LongitudeOff(eclipses[i].place, row.longitude), 0.0, 0.2);
    }
}

double MinutesOf(const std::optional<SkySpan>& span) {
    return span ? (span->end - span->from) * kMinutes : 0.0;
}

TEST(LunarEclipses, AreAllThatTheCanonHas) {
    const auto eclipses = EclipsesOfThirtyYears(false);
    ASSERT_EQ(eclipses.size(), std::size(kCanonLunarEclipses));
    for (std::size_t i = 0; i < eclipses.size(); ++i) {
        const CanonLunarEclipse& row = kCanonLunarEclipses[i];
        SCOPED_TRACE(testing::Message() << row.year << "-" << row.month << "-" << row.day);
        EXPECT_EQ(LetterOf(eclipses[i].kind), row.kind);
        EXPECT_NEAR((eclipses[i].greatest - GreatestOf(row)) * kSecondsPerDay, 0.0, 20.0);
        EXPECT_NEAR(eclipses[i].gamma, row.gamma, 0.0011);
        EXPECT_NEAR(eclipses[i].penumbralMagnitude, row.penumbralMagnitude, 0.002);
        EXPECT_NEAR(eclipses[i].magnitude, row.umbralMagnitude, 0.002);
        EXPECT_NEAR(MinutesOf(eclipses[i].phases->whole), row.penumbral, 1.5);
        EXPECT_NEAR(MinutesOf(eclipses[i].phases->umbral), row.partial, 0.5);
        EXPECT_NEAR(MinutesOf(eclipses[i].phases->full), row.total, 0.5);
    }
}

/// Hours and minutes of Universal Time, with seconds.
void ExpectTime(Date instant, int hour, int minute, int second) {
    const double found = (instant - std::floor(instant)) * kSecondsPerDay;
    EXPECT_NEAR(found, TimeSerial(hour, minute, second) * kSecondsPerDay, 30.0);
}

Eclipse EclipseOf(int year, int month, int day) {
    const Date midnight = DateSerial(year, month, day);
    return EclipsesBetween(ErfaAlmanac(), midnight, midnight + 1.0).at(0);
}

// Contacts of F. Espenak, NASA's GSFC, for 27 July 2018.
TEST(LunarEclipses, HaveTheirContactsWhenPublished) {
    const EclipsePhases phases = EclipseOf(2018, 7, 27).phases.value();
    ExpectTime(phases.whole.from, 17, 14, 49);
    ExpectTime(phases.umbral->from, 18, 24, 27);
    ExpectTime(phases.full->from, 19, 30, 15);
    ExpectTime(phases.full->end, 21, 13, 12);
    ExpectTime(phases.umbral->end, 22, 19, 0);
    ExpectTime(phases.whole.end, 23, 28, 37);
}

TEST(LunarEclipses, OfThePenumbraAloneHaveNoPhaseWithin) {
    const Eclipse eclipse = EclipseOf(2023, 5, 5);
    EXPECT_FALSE(eclipse.phases->umbral || eclipse.phases->full);
    EXPECT_LT(eclipse.magnitude, 0.0);
}

TEST(Eclipses, BelongToTheSpanThatTheirGreatestInstantLiesIn) {
    const Date greatest = EclipseOf(2026, 8, 12).greatest;
    const ErfaAlmanac almanac;
    const Date before = greatest - 1.0 / kSecondsPerDay;
    EXPECT_EQ(EclipsesBetween(almanac, before, before + 1.0).size(), 1U);
    EXPECT_EQ(EclipsesBetween(almanac, before - 1.0, before).size(), 0U);
}

// Sun and moon go along the equator together: each new moon hides the sun there, or leaves a ring.
TEST(Eclipses, ComeWithEveryNewAndFullMoonWhereNoOrbitIsTilted) {
    EvenAlmanac almanac;
    almanac.moonStart = 10.0;
    almanac.moonPace = 12.0;
    const auto eclipses = EclipsesBetween(almanac, 0.0, 30.0);
    ASSERT_EQ(eclipses.size(), 2U);
    EXPECT_FALSE(eclipses[0].solar);
    EXPECT_EQ(eclipses[0].kind, EclipseKind::kTotal);
    EXPECT_NEAR(eclipses[0].greatest, 170.0 / 12.0, 1e-5);
    EXPECT_TRUE(eclipses[1].solar);
    EXPECT_EQ(eclipses[1].kind, EclipseKind::kAnnular);
    EXPECT_NEAR(eclipses[1].greatest, 350.0 / 12.0, 1e-5);
    EXPECT_NEAR(eclipses[1].place.latitude, 0.0, 1e-6);
}

TEST(Eclipses, AreTotalOrHybridWhereTheMoonIsNear) {
    EvenAlmanac almanac;
    almanac.moonStart = 350.0;
    almanac.moonPace = 12.0;
    almanac.moonDistance = 360000.0;
    EXPECT_EQ(EclipsesBetween(almanac, 0.0, 2.0).at(0).kind, EclipseKind::kTotal);
    almanac.moonDistance = 378000.0;
    EXPECT_EQ(EclipsesBetween(almanac, 0.0, 2.0).at(0).kind, EclipseKind::kHybrid);
}

}  // namespace
}  // namespace horavex
