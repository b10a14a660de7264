#pragma once

#include "engine/moment.h"
#include "engine/ruled_year.h"
#include "lib/horavex.h"

/// A year as it was worked out.
struct horavex_year {
    horavex::YearBasis basis;
    horavex::YearTimes times;
};

namespace horavex {

/// Works a year out. The structs have been taken. Throws Refusal for values outside their ranges
/// and for a day without twilight.
horavex_year MakeYear(const horavex_place& place, const horavex_method& method, std::int32_t year);

/// The last row of a year, 364 or 365.
std::size_t LastRow(const horavex_year& year);

/// The first of January.
Date NewYear(const horavex_year& year);

}  // namespace horavex
