#include "sky/month_evenings.h"

#include <gtest/gtest.h>

#include "calendar/hijri_calendar.h"
#include "linux/erfa_almanac.h"

namespace horavex {
namespace {

/// On a clock so many hours ahead of Greenwich.
Lookout LookoutOf(const Observer& observer, double hours) {
    return {observer, [=](Date local) { return local - hours / 24.0; },
            [=](Date universal) { return universal + hours / 24.0; }};
}

const Lookout kMecca = LookoutOf({21.4225, 39.8262}, 3.0);

TEST(EveningsOfMonth, StandAroundItsNewMoon) {
    const MonthEvenings ramadan = EveningsOfMonth(ErfaAlmanac(), kMecca, 1447, 9);
    EXPECT_NEAR(ramadan.newMoon, DateSerial(2026, 2, 17) + TimeSerial(12, 1, 0), 1.0 / 1440.0);
    ASSERT_EQ(ramadan.evenings.size(), 5U);
    EXPECT_EQ(ramadan.evenings[0].day, DateSerial(2026, 2, 16));
    EXPECT_LT(ramadan.evenings[0].crescent->age, 0.0);
    EXPECT_EQ(ramadan.evenings[3].day, DateSerial(2026, 2, 19));
}

TEST(EveningsOfMonth, GoByTheCalendarOfThePlace) {
    const Lookout kiribati = LookoutOf({1.87, -157.4}, 14.0);
    const MonthEvenings ramadan = EveningsOfMonth(ErfaAlmanac(), kiribati, 1447, 9);
    EXPECT_EQ(ramadan.evenings[1].day, DateSerial(2026, 2, 18));  // the new moon is on its 2 a.m.
    EXPECT_NEAR(ramadan.evenings[1].crescent->sunset, DateSerial(2026, 2, 18) + 4.6 / 24.0,
                1.0 / 24.0);
}

TEST(EveningsOfMonth, HaveANewMoonNearTheBeginningOfEveryMonth) {
    for (int month = 1; month <= 12; ++month) {
        const MonthEvenings found = EveningsOfMonth(ErfaAlmanac(), kMecca, 1448, month);
        const Date arithmetic = DateFromHijri({1448, month, 1});
        EXPECT_NEAR(arithmetic - found.newMoon, 1.5, 1.6) << month;
    }
}

TEST(SolarDay, IsTheDateByTheSunOnEitherSideOfTheDateLine) {
    const Date day = DateSerial(2024, 3, 11);
    EXPECT_EQ(SolarDay(kMecca, day), day);
    EXPECT_EQ(SolarDay(LookoutOf({-13.83, -171.77}, 13.0), day), day - 1.0) << "Samoa";
    EXPECT_EQ(SolarDay(LookoutOf({-14.28, -170.7}, -11.0), day), day) << "American Samoa";
    EXPECT_EQ(SolarDay(LookoutOf({51.9, 179.6}, -10.0), day), day + 1.0) << "the western Aleutians";
}

/// Evenings from day 100 on, each judged with a letter of both criteria.
MonthEvenings EveningsOf(const std::string& letters) {
    MonthEvenings month{0.0, {}};
    CrescentEvening evening{};
    evening.moonUp = true;
    for (const char letter : letters) {
        evening.yallop.letter = evening.odeh.letter = letter;
        month.evenings.push_back({100.0 + static_cast<double>(month.evenings.size()), evening});
    }
    return month;
}

TEST(FirstDay, FollowsTheFirstEveningThatIsGoodEnough) {
    const MonthEvenings yallop = EveningsOf("EDCB");
    EXPECT_EQ(FirstDay(yallop, Criterion::kYallop, Sight::kNakedEye), 104.0);
    EXPECT_EQ(FirstDay(yallop, Criterion::kYallop, Sight::kAided), 102.0);
    const MonthEvenings odeh = EveningsOf("DCBA");
    EXPECT_EQ(FirstDay(odeh, Criterion::kOdeh, Sight::kNakedEye), 103.0);
    EXPECT_EQ(FirstDay(odeh, Criterion::kOdeh, Sight::kAided), 102.0);
    EXPECT_EQ(FirstDay(EveningsOf("FE"), Criterion::kYallop, Sight::kAided), std::nullopt);
}

TEST(EveningOfSight, IsTheFirstOnWhichOpticalAidIsEnough) {
    EXPECT_EQ(EveningOfSight(EveningsOf("EDCB"), Criterion::kYallop), 1U);
    EXPECT_EQ(EveningOfSight(EveningsOf("DDDB"), Criterion::kOdeh), 3U);
    EXPECT_EQ(EveningOfSight(EveningsOf("FFFF"), Criterion::kYallop), 2U);
}

// By its numbers alone this evening would show the moon: they are not asked where it has set.
TEST(FirstDay, NeverFollowsAnEveningOnWhichTheMoonSetsFirst) {
    const MonthEvenings helsinki =
        EveningsOfMonth(ErfaAlmanac(), LookoutOf({60.17, 24.94}, 3.0), 1449, 5);
    const DatedEvening& fourth = helsinki.evenings[3];
    ASSERT_EQ(fourth.day, DateSerial(2027, 10, 2));
    EXPECT_EQ(fourth.crescent->yallop.letter, 'B');
    EXPECT_EQ(KindOf(fourth.crescent, helsinki.newMoon), EveningKind::kMoonSetsFirst);
    EXPECT_NE(FirstDay(helsinki, Criterion::kYallop, Sight::kAided), fourth.day + 1.0);
    EXPECT_NE(EveningOfSight(helsinki, Criterion::kOdeh), 3U);
}

TEST(FirstDay, NeverFollowsAnEveningBeforeTheNewMoon) {
    const MonthEvenings tromso =
        EveningsOfMonth(ErfaAlmanac(), LookoutOf({69.65, 18.96}, 2.0), 1442, 3);
    EXPECT_EQ(tromso.evenings[0].day, DateSerial(2020, 10, 15));
    EXPECT_LE(tromso.evenings[0].crescent->odeh.letter, 'C');
    for (const Criterion criterion : {Criterion::kYallop, Criterion::kOdeh}) {
        EXPECT_GT(FirstDay(tromso, criterion, Sight::kAided).value_or(tromso.newMoon + 9.0),
                  tromso.newMoon + 1.0);
    }
}

TEST(FirstDay, IsFoundInTheAutumnOfLondonWhereTheYoungMoonStaysLow) {
    const MonthEvenings london =
        EveningsOfMonth(ErfaAlmanac(), LookoutOf({51.5, -0.12}, 1.0), 1446, 4);
    EXPECT_EQ(FirstDay(london, Criterion::kYallop, Sight::kNakedEye), DateSerial(2024, 10, 6));
}

TEST(FirstDay, PassesOverAnEveningWithoutASunset) {
    const MonthEvenings month{0.0, {{100.0, std::nullopt}}};
    EXPECT_EQ(FirstDay(month, Criterion::kOdeh, Sight::kAided), std::nullopt);
}

}  // namespace
}  // namespace horavex
