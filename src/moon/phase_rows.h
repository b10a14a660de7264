#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "moon/moon_date.h"

namespace horavex {

// The four principal phases of a Gregorian year as rows of text, 13 each, at twelfths of the year:
// in some years the steps leave one lunation out, and the first row may lie in the December before,
// the last in the January or February after. "6 January 2000, 20hrs 14min"; the rows of all but the
// new moon have a second blank behind the comma. Instants are in dynamical time, without a
// correction to universal time. Accuracy: two minutes or so, through the estimate in T and fourteen
// planetary terms where the book has one squared term.

// zone: whole hours, as WholeZone tells them.
MoonRows ComputeNewMoonRows(std::int16_t year, double zone);
MoonRows ComputeFirstQuarterRows(std::int16_t year, double zone);
MoonRows ComputeFullMoonRows(std::int16_t year, double zone);
MoonRows ComputeLastQuarterRows(std::int16_t year, double zone);

enum class MoonPhase { kNewMoon, kFirstQuarter, kFullMoon, kLastQuarter };

/// The first row of a table whose moon comes at a moment or behind it; -1 where none does. day: a
/// Julian day of Universal Time.
int NextMoonRow(MoonPhase phase, std::int16_t year, double day);

/// The Hijri labels beside the rows of the moon tables of a Gregorian year: up to 2020 a slice of
/// the table of labels, 12 or 13 of them; later those of the calendar converter, one for each row
/// of the year's new moons.
std::vector<std::string> MoonRowLabels(std::int16_t year, const MoonRows& newMoons);

}  // namespace horavex
