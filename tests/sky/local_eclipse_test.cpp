#include "sky/local_eclipse.h"

#include <gtest/gtest.h>

#include <cmath>

#include "linux/erfa_almanac.h"
#include "sky/eclipse_canon.h"

namespace horavex {
namespace {

constexpr Observer kCairo{30.05, 31.25};
constexpr Observer kLondon{51.5, -0.12};

Eclipse EclipseOf(int year, int month, int day) {
    const Date midnight = DateSerial(year, month, day);
    return EclipsesBetween(ErfaAlmanac(), midnight, midnight + 1.0).at(0);
}

std::optional<LocalEclipse> Over(const Observer& observer, int year, int month, int day) {
    return LocalEclipseOf(ErfaAlmanac(), observer, EclipseOf(year, month, day));
}

Date At(const CivilDate& day, int hour, int minute, int second) {
    return DateSerial(day.year, day.month, day.day) + TimeSerial(hour, minute, second);
}

/// Time of the day of Greenwich.
struct Clock {
    int hour, minute, second;
};

void ExpectTime(const char* what, Date instant, const CivilDate& day, const Clock& published,
                double within) {
    const Date expected = At(day, published.hour, published.minute, published.second);
    EXPECT_NEAR((instant - expected) * kSecondsPerDay, 0.0, within) << what;
}

/// An eclipse of the sun over a place; begin and end of what is total or annular are 0 where it is
/// neither.
struct SunOverPlace {
    const char* where;
    CivilDate day;
    Observer place;
    EclipseKind kind;
    Clock begin, fullBegin, greatest, fullEnd, end;
};

// F. Espenak, eclipsewise.com, whose figures are to the second; for Ólafsvík those that a tour
// operator (discover-the-world.com) prints for the spot where it watches.
constexpr SunOverPlace kToTheSecond[] = {
    {"Orlando",
     {2017, 8, 21},
     {28.553160, -81.364510},
     EclipseKind::kPartial,
     {17, 19, 28},
     {},
     {18, 51, 17},
     {},
     {20, 14, 57}},
    {"New Smyrna Beach",
     {2024, 4, 8},
     {29.0181, -80.9481},
     EclipseKind::kPartial,
     {17, 48, 8},
     {},
     {19, 4, 48},
     {},
     {20, 18, 34}},
    {"Findlay",
     {2024, 4, 8},
     {41.0341, -83.6523},
     EclipseKind::kTotal,
     {17, 55, 52},
     {19, 10, 42},
     {19, 12, 34},
     {19, 14, 27},
     {20, 26, 37}},
    {"Bermuda",
     {2024, 4, 8},
     {32.3066, -64.7503},
     EclipseKind::kPartial,
     {18, 26, 16},
     {},
     {19, 34, 26},
     {},
     {20, 37, 34}},
    {"Patagonia",
     {2024, 10, 2},
     {-48.2051, -70.6549},
     EclipseKind::kAnnular,
     {19, 0, 27},
     {20, 22, 16},
     {20, 25, 26},
     {20, 28, 35},
     {21, 42, 37}},
    {"Ólafsvík",
     {2026, 8, 12},
     {64.8953, -23.7069},
     EclipseKind::kTotal,
     {16, 45, 5},
     {17, 45, 53},
     {17, 46, 55},
     {17, 47, 56},
     {18, 46, 6}},
    {"south of the Marshall Islands",
     {2023, 4, 20},
     {4.6622, 170.8101},
     EclipseKind::kPartial,
     {4, 42, 21},
     {},
     {5, 54, 27},
     {},
     {6, 57, 32}},
};

// Figures to the minute or its tenth, as the press had them: NASA's of cities on the path of 8
// April 2024; the Positional Astronomy Centre of India's for 21 June 2020; those of Singapore for
// 26 December 2019, without a greatest instant, for which the middle stands; those of Spain's
// Instituto Geográfico Nacional for A Coruña (20:27:37 of its clock and 76 seconds of totality),
// and W. Al-Naser's, Arabian Gulf University, for Mecca.
constexpr SunOverPlace kToTheMinute[] = {
    {"Dallas",
     {2024, 4, 8},
     {32.78, -96.80},
     EclipseKind::kTotal,
     {17, 23, 0},
     {18, 40, 0},
     {18, 42, 0},
     {18, 44, 0},
     {20, 2, 0}},
    {"Agartala",
     {2020, 6, 21},
     {23.83, 91.28},
     EclipseKind::kPartial,
     {5, 26, 0},
     {},
     {7, 15, 6},
     {},
     {8, 53, 36}},
    {"Allahabad",
     {2020, 6, 21},
     {25.45, 81.85},
     EclipseKind::kPartial,
     {4, 57, 36},
     {},
     {6, 43, 36},
     {},
     {8, 30, 36}},
    {"Amritsar",
     {2020, 6, 21},
     {31.63, 74.87},
     EclipseKind::kPartial,
     {4, 50, 0},
     {},
     {6, 27, 42},
     {},
     {8, 11, 36}},
    {"Bangalore",
     {2020, 6, 21},
     {12.97, 77.59},
     EclipseKind::kPartial,
     {4, 43, 12},
     {},
     {6, 17, 36},
     {},
     {8, 1, 30}},
    {"Singapore",
     {2019, 12, 26},
     {1.29, 103.85},
     EclipseKind::kAnnular,
     {3, 27, 0},
     {5, 22, 0},
     {5, 23, 0},
     {5, 24, 0},
     {7, 18, 0}},
    {"A Coruña",
     {2026, 8, 12},
     {43.37, -8.40},
     EclipseKind::kTotal,
     {17, 30, 52},
     {18, 27, 37},
     {18, 28, 15},
     {18, 28, 53},
     {19, 22, 0}},
    {"Mecca",
     {2027, 8, 2},
     {21.4225, 39.8262},
     EclipseKind::kTotal,
     {9, 1, 0},
     {10, 24, 0},
     {10, 26, 30},
     {10, 29, 0},
     {11, 44, 0}},
};

void ExpectPublished(const SunOverPlace& row, double within) {
    SCOPED_TRACE(row.where);
    const auto local = Over(row.place, row.day.year, row.day.month, row.day.day);
    ASSERT_TRUE(local.has_value());
    EXPECT_EQ(local->kind, row.kind);
    ExpectTime("begin", local->phases.whole.from, row.day, row.begin, within);
    ExpectTime("greatest", local->greatest, row.day, row.greatest, within);
    ExpectTime("end", local->phases.whole.end, row.day, row.end, within);
    ASSERT_EQ(local->phases.full.has_value(), row.kind != EclipseKind::kPartial);
    if (local->phases.full) {
        ExpectTime("full begin", local->phases.full->from, row.day, row.fullBegin, within);
        ExpectTime("full end", local->phases.full->end, row.day, row.fullEnd, within);
    }
}

TEST(SunOverPlace, HasItsContactsWhenPublished) {
    for (const SunOverPlace& row : kToTheSecond) {
        ExpectPublished(row, 12.0);
    }
    for (const SunOverPlace& row : kToTheMinute) {
        ExpectPublished(row, 60.0);
    }
}

// Positional Astronomy Centre of India.
TEST(SunOverPlace, CoversAsMuchAsPublished) {
    const LocalEclipse amritsar = Over({31.63, 74.87}, 2020, 6, 21).value();
    EXPECT_NEAR(amritsar.magnitude, 0.935, 0.002);
    EXPECT_NEAR(amritsar.obscuration, 0.915, 0.002);
    const LocalEclipse bangalore = Over({12.97, 77.59}, 2020, 6, 21).value();
    EXPECT_NEAR(bangalore.magnitude, 0.473, 0.002);
    EXPECT_NEAR(bangalore.obscuration, 0.365, 0.005);
}

EclipseKind LocalKindOf(char canon) {
    switch (canon) {
        case 'A':
            return EclipseKind::kAnnular;
        case 'P':
            return EclipseKind::kPartial;
        default:
            return EclipseKind::kTotal;
    }
}

TEST(SunOverPlace, LastsWhereItIsGreatestAsLongAsTheCanonTells) {
    for (const CanonSolarEclipse& row : kCanonSolarEclipses) {
        if (row.duration == 0) {
            continue;
        }
        SCOPED_TRACE(testing::Message() << row.year << "-" << row.month << "-" << row.day);
        const Eclipse eclipse = EclipseOf(row.year, row.month, row.day);
        const auto local = LocalEclipseOf(ErfaAlmanac(), eclipse.place, eclipse);
        ASSERT_TRUE(local && local->phases.full);
        EXPECT_EQ(local->kind, LocalKindOf(row.kind));
        const SkySpan& full = *local->phases.full;
        EXPECT_NEAR((full.end - full.from) * kSecondsPerDay, row.duration, 5.0);
    }
}

TEST(SunOverPlace, IsNoneWhereTheMoonPassesTheSunBy) {
    EXPECT_FALSE(Over({-54.8, -68.3}, 2024, 4, 8));
    EXPECT_FALSE(Over({-33.9, 18.4}, 2027, 8, 2));
}

TEST(SunOverPlace, IsSeenUntilTheSunSets) {
    const LocalEclipse valencia = Over({39.47, -0.38}, 2026, 8, 12).value();
    ASSERT_EQ(valencia.seen.size(), 1U);
    EXPECT_EQ(valencia.seen[0].from, valencia.phases.whole.from);
    ExpectTime("sunset", valencia.seen[0].end, {2026, 8, 12}, {19, 1, 18}, 5.0);
    EXPECT_EQ(valencia.best->instant, valencia.greatest);
    EXPECT_FALSE(valencia.IsSeenAt(valencia.phases.whole.end));
}

TEST(SunOverPlace, IsLessAtSunriseThanItWasBelowTheHorizon) {
    const LocalEclipse local = Over({39.0, -77.0}, 2021, 6, 10).value();
    ASSERT_TRUE(local.best.has_value());
    EXPECT_EQ(local.best->instant, local.seen[0].from);
    EXPECT_LT(local.best->magnitude, local.magnitude);
}

// The line of the shadow goes on through the Earth.
TEST(SunOverPlace, IsUnseenUnderTheGround) {
    const LocalEclipse local = Over(kCairo, 2024, 4, 8).value();
    EXPECT_TRUE(local.seen.empty());
    EXPECT_FALSE(local.best);
}

TEST(MoonOverPlace, IsSeenFromMoonriseOn) {
    const LocalEclipse london = Over(kLondon, 2018, 7, 27).value();
    EXPECT_EQ(london.kind, EclipseKind::kTotal);
    ASSERT_EQ(london.seen.size(), 1U);
    ExpectTime("moonrise", london.seen[0].from, {2018, 7, 27}, {19, 49, 13}, 20.0);
    EXPECT_FALSE(london.IsSeenAt(london.phases.full->from));
    EXPECT_TRUE(london.IsSeenAt(london.phases.full->end));
    EXPECT_EQ(london.best->instant, london.greatest);
    EXPECT_NEAR(london.best->magnitude, 1.6087, 0.002);
    EXPECT_EQ(london.obscuration, 0.0) << "of the sun's disc nothing is covered";
}

// 7 September 2025 and 3 March 2026, to the minute as published.
TEST(MoonOverPlace, HasThePhasesOfTheEarth) {
    const CivilDate day{2025, 9, 7};
    const EclipsePhases autumn = Over(kCairo, 2025, 9, 7)->phases;
    ExpectTime("P1", autumn.whole.from, day, {15, 28, 0}, 60.0);
    ExpectTime("U1", autumn.umbral->from, day, {16, 27, 0}, 60.0);
    ExpectTime("U2", autumn.full->from, day, {17, 30, 0}, 60.0);
    ExpectTime("U3", autumn.full->end, day, {18, 52, 0}, 60.0);
    ExpectTime("U4", autumn.umbral->end, day, {19, 56, 0}, 60.0);
    ExpectTime("P4", autumn.whole.end, day, {20, 55, 0}, 60.0);
    const CivilDate march{2026, 3, 3};
    const EclipsePhases spring = Over(kCairo, 2026, 3, 3)->phases;
    ExpectTime("P1", spring.whole.from, march, {8, 44, 0}, 60.0);
    ExpectTime("U1", spring.umbral->from, march, {9, 50, 0}, 60.0);
    ExpectTime("U2", spring.full->from, march, {11, 4, 0}, 60.0);
    ExpectTime("U3", spring.full->end, march, {12, 3, 0}, 60.0);
    ExpectTime("U4", spring.umbral->end, march, {13, 17, 0}, 60.0);
    ExpectTime("P4", spring.whole.end, march, {14, 23, 0}, 60.0);
}

// The moon of December passes below the pole, and dips.
TEST(MoonOverPlace, IsSeenTwiceFromTheFarNorthAndBestWhereItIsNearerToTheGreatest) {
    const LocalEclipse west = Over({65.0, 45.0}, 2010, 12, 21).value();
    ASSERT_EQ(west.seen.size(), 2U);
    EXPECT_TRUE(west.IsSeenAt(west.phases.whole.from));
    EXPECT_FALSE(west.IsSeenAt(west.greatest));
    EXPECT_TRUE(west.IsSeenAt(west.phases.whole.end));
    EXPECT_EQ(west.best->instant, west.seen[0].end);
    const LocalEclipse east = Over({65.0, 60.0}, 2010, 12, 21).value();
    ASSERT_EQ(east.seen.size(), 2U);
    EXPECT_EQ(east.best->instant, east.seen[1].from);
}

TEST(SunOverPlace, IsSeenTwiceWhereTheMidnightSunDips) {
    const LocalEclipse local = Over({67.0, 45.0}, 2011, 6, 1).value();
    ASSERT_EQ(local.seen.size(), 2U);
    EXPECT_EQ(local.best->instant, local.seen[1].from);
    EXPECT_LT(local.best->magnitude, local.magnitude);
}

TEST(MoonOverPlace, IsUnseenByDay) {
    const LocalEclipse cairo = Over(kCairo, 2026, 3, 3).value();
    EXPECT_TRUE(cairo.seen.empty());
    EXPECT_FALSE(cairo.best);
}

}  // namespace
}  // namespace horavex
