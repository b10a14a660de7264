#pragma once

#include <cstddef>
#include <vector>

#include "engine/moment.h"
#include "engine/night_rules.h"

namespace horavex {

// A year's moments are made from its table and from what the options ask for. With no option they
// are the table's own numbers.

/// A method whose year gives up for no twilight that the rules have an answer for.
YearMethod MethodUnder(const MomentRules& rules, YearMethod method);

/// Those of a row as it stands: by the sun, without a rule.
DayMoments TableMoments(const PrayerRow& hours);

/// The moments of a day. row: 0 to 365. With rules Isha may lie beyond 24 and Fajr below 0 hours.
DayMoments MomentsOf(const YearSource& year, std::size_t row);

/// Those of the first rows.
std::vector<DayMoments> MomentsOfRows(const YearSource& year, std::size_t count);

/// The moments of a day of the program's year by the rules in force.
DayMoments MomentsOfRow(std::size_t row);

/// Those of all days of CurrentYear, by row: the same, but what days share is worked out once.
std::vector<DayMoments> MomentsOfAllRows();

}  // namespace horavex
