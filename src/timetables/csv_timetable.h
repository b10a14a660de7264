#pragma once

#include <string>

#include "timetables/timetable.h"

namespace horavex {

/// The table as CSV by RFC 4180: a head and a line a day, CR LF behind each. Dates are ISO 8601,
/// times are of 24 hours and empty where there is none, daylight saving is 0 or 1.
/// A column for marks is there only in a year that has some.
std::string CsvTimetable(const Timetable& table);

// The same in pieces, for years of many places in one file.

/// The head, with the column for marks or without.
std::string CsvHead(bool marks);

/// The days, a text in front of each line.
std::string CsvDays(const Timetable& table, bool marks, const std::string& first);

}  // namespace horavex
