#include "sky/told_eclipses.h"

#include <gtest/gtest.h>

#include "linux/erfa_almanac.h"

namespace horavex {
namespace {

using Days = std::vector<std::string>;

std::string DayText(Date date) {
    const CivilDate day = CivilFromDate(date);
    return std::to_string(day.year) + "-" + std::to_string(day.month) + "-" +
           std::to_string(day.day);
}

/// Days of the candidates of one body that happen, or of those that do not.
Days DaysOf(const std::vector<ToldCandidate>& candidates, bool solar, bool happens) {
    Days days;
    for (const ToldCandidate& candidate : candidates) {
        if (candidate.solar == solar && candidate.happens == happens) {
            days.push_back(DayText(candidate.instant));
        }
    }
    return days;
}

TEST(ToldCandidates, AreMarkedWhereTheSkyHasNoneOfThem) {
    const auto candidates = ToldCandidates(ErfaAlmanac(), 2001);
    EXPECT_EQ(DaysOf(candidates, true, true), (Days{"2000-12-25", "2001-6-21", "2001-12-14"}));
    EXPECT_EQ(DaysOf(candidates, true, false), (Days{"2001-1-24"}));
    EXPECT_EQ(DaysOf(candidates, false, true), (Days{"2001-1-9", "2001-7-5", "2001-12-30"}));
    EXPECT_EQ(DaysOf(candidates, false, false), (Days{"2001-11-30"}));
}

TEST(IsTold, IsFalseForWhatTheListsMiss) {
    const ErfaAlmanac almanac;
    Days missing;
    for (const int year : {2002, 2008, 2011, 2020, 2026, 2027, 2029}) {
        const auto candidates = ToldCandidates(almanac, year);
        for (const Eclipse& eclipse :
             EclipsesBetween(almanac, DateSerial(year, 1, 1), DateSerial(year + 1, 1, 1))) {
            if (!IsTold(eclipse, candidates)) {
                missing.push_back(DayText(eclipse.greatest));
            }
        }
    }
    EXPECT_EQ(missing, (Days{"2002-5-26", "2008-2-7", "2008-2-21", "2011-6-1", "2020-6-5",
                             "2027-2-6", "2027-2-20", "2029-6-12"}));
}

}  // namespace
}  // namespace horavex
