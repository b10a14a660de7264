#pragma once

#include <cstdint>

namespace horavex {

/// Gregorian year that the table of times is for. Written by the recalculation and by the load
/// of the settings window.
extern std::int16_t CurrentYear;

/// 1 in a leap year, else 0: the plain number that is added to 365. Written by LeapYearFlag.
extern std::int16_t LeapFlag;

/// 1 for a leap year by the Gregorian rule, else 0.
std::int16_t LeapFlagOf(std::int16_t year);

/// Works out LeapFlag for CurrentYear.
void LeapYearFlag();

}  // namespace horavex
