#pragma once

#include <cstddef>
#include <vector>

#include "timetables/timetable.h"

namespace horavex {

/// Where the name of a time stands in the picture of a year, below the time's curve.
struct YearName {
    std::size_t prayer;
    std::size_t row;  // of the table, where it begins
    double hours;     // of the clock, at the middle of its height
};

/// Names in one column: in the month where the narrowest place between two curves, or a curve and
/// one of the lines across, is the widest, or where it is wide enough first. A time that never
/// comes there has none. hoursPerLine: between two lines across.
std::vector<YearName> PlaceYearNames(const Timetable& table, int hoursPerLine);

}  // namespace horavex
