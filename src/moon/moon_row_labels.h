#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace horavex {

/// The Hijri labels beside the rows of NewMoonRows, which have been computed for the same Gregorian
/// year: up to 2020 a slice of the table of labels, 12 or 13 of them; later those of the calendar
/// converter, one a row.
std::vector<std::string> MoonRowLabels(std::int16_t year);

}  // namespace horavex
