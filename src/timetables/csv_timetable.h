#pragma once

#include <string>

#include "timetables/timetable.h"

namespace horavex {

/// The table as CSV by RFC 4180: a head and a line a day, CR LF behind each. Dates are ISO 8601,
/// times are of 24 hours and empty where there is none, daylight saving is 0 or 1.
std::string CsvTimetable(const Timetable& table);

}  // namespace horavex
