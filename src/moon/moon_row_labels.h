#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "moon/moon_date.h"

namespace horavex {

/// The Hijri labels beside the rows of the moon tables of a Gregorian year: up to 2020 a slice of
/// the table of labels, 12 or 13 of them; later those of the calendar converter, one for each row
/// of the year's new moons.
std::vector<std::string> MoonRowLabels(std::int16_t year, const MoonRows& newMoons);

}  // namespace horavex
