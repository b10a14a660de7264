#pragma once

#include <array>
#include <string>
#include <string_view>

#include "engine/year_calculation.h"

namespace horavex::bench {

/// What stands above the days of each month of a year's text pages.
using PageHeads = std::array<std::string, 12>;

/// Those of written pages.
PageHeads HeadsOf(std::string_view pages);

/// What the text of a year's pages costs at least: the six times of each day as digits in their
/// columns, one behind the other into memory that is there already. times: without daylight saving,
/// each between 0 and 24 hours. Byte for byte what WriteTextPages writes by FixedFormats.
void FloorTextPages(int year, const YearTimes& times, const PageHeads& heads, std::string& text);

}  // namespace horavex::bench
