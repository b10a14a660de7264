#include "calendar/hijri_calendar.h"

namespace horavex {
namespace {

struct KnownDate {
    CivilDate civil;
    HijriDate hijri;
};

// Sample dates of the arithmetic calendar with the civil epoch, from the tables of Reingold and
// Dershowitz, Calendrical Calculations, appendix C.
class HijriSamples : public testing::TestWithParam<KnownDate> {};

TEST_P(HijriSamples, ConvertBothWays) {
    const auto& [civil, hijri] = GetParam();
    const Date date = DateSerial(civil.year, civil.month, civil.day);
    EXPECT_EQ(HijriFromDate(date), hijri);
    EXPECT_EQ(DateFromHijri(hijri), date);
}

INSTANTIATE_TEST_SUITE_P(Known, HijriSamples,
                         testing::Values(KnownDate{{622, 7, 19}, {1, 1, 1}},
                                         KnownDate{{1648, 6, 10}, {1058, 5, 18}},
                                         KnownDate{{1943, 4, 19}, {1362, 4, 13}},
                                         KnownDate{{1996, 2, 25}, {1416, 10, 5}},
                                         KnownDate{{2038, 11, 10}, {1460, 10, 12}}));

TEST(HijriLeapYear, ElevenOfThirtyYearsAreLong) {
    std::vector<int> leapYears;
    for (int year = 1; year <= 30; ++year) {
        if (IsHijriLeapYear(year)) {
            leapYears.push_back(year);
        }
    }
    EXPECT_EQ(leapYears, (std::vector<int>{2, 5, 7, 10, 13, 16, 18, 21, 24, 26, 29}));
}

TEST(HijriMonth, LengthsAlternateAndTheLeapDayEndsTheYear) {
    EXPECT_EQ(DaysInHijriMonth(1447, 1), 30);
    EXPECT_EQ(DaysInHijriMonth(1447, 2), 29);
    EXPECT_EQ(DaysInHijriMonth(1447, 12), 30);  // 1447 is the seventh of its cycle
    EXPECT_EQ(DaysInHijriMonth(1446, 12), 29);
}

TEST(HijriFromDate, EveryDayOfSixCenturiesFollowsTheOneBefore) {
    HijriDate former = HijriFromDate(DateSerial(1800, 1, 1) - 1);
    for (Date date = DateSerial(1800, 1, 1); date < DateSerial(2400, 1, 1); date += 1) {
        const HijriDate here = HijriFromDate(date);
        HijriDate expected{former.year, former.month, former.day + 1};
        if (expected.day > DaysInHijriMonth(former.year, former.month)) {
            expected = former.month == 12 ? HijriDate{former.year + 1, 1, 1}
                                          : HijriDate{former.year, former.month + 1, 1};
        }
        ASSERT_EQ(here, expected) << date;
        ASSERT_EQ(DateFromHijri(here), date);
        former = here;
    }
}

TEST(HijriFromDate, TurnsAtMidnight) {
    const Date day = DateSerial(2026, 11, 21);
    EXPECT_EQ(HijriFromDate(day), HijriFromDate(day + 0.99999));
    EXPECT_NE(HijriFromDate(day), HijriFromDate(day + 1.0));
}

TEST(HijriFromDate, YearsBeforeTheHijraGoOnDownward) {
    EXPECT_EQ(HijriFromDate(DateSerial(622, 7, 18)), (HijriDate{0, 12, 29}));
}

}  // namespace
}  // namespace horavex
