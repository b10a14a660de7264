#pragma once

#include "base/date.h"

namespace horavex {

// The equation of time by the low-precision formulas for the Sun of The Astronomical Almanac (page
// C24 of the editions since 1984): mean anomaly G and mean longitude with their motions in a
// century rounded to the hundredth of a degree, two terms of the equation of the centre E, and
// right ascension from the ecliptic longitude by two terms of the obliquity, 2.466 and 0.053
// degrees, which do not change with time. Epoch: noon of 1 January 2000. Valid from 1 March 1900 to
// 28 February 2100, in whose count of days every fourth year is a leap year. Against PyEphem 4.1.4
// within 3 seconds from 1901 to 2050, 3.2 until 2100. No time of the table depends on it.

/// Equation of time in minutes, apparent less mean time, at noon of the given Gregorian day.
double EquationOfTime(Date date);

}  // namespace horavex
