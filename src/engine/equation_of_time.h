#pragma once

#include "base/date.h"

namespace horavex {

/// Equation of time in minutes at noon of the given Gregorian day, by a short series of epoch
/// 2000; good to a few seconds between 1950 and 2050.
double EquationOfTime(Date date);

}  // namespace horavex
