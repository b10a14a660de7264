#pragma once

#include <string>

#include "ctl/json_text.h"

namespace horavex {

/// The calculated year as the object that `year` prints, one line without its end. A year that gave
/// up is told as its table stands; rows that were not reached are zeros.
std::string YearJson();

/// AddBasis at the first day of the calculated year, and "moments" with those of every day; null
/// for a year that gave up.
void AddYearBasis(ObjectText& object);

}  // namespace horavex
