#pragma once

#include <string>

#include "timetables/timetable.h"
#include "timetables/timetable_words.h"

namespace horavex {

/// The table as one page of HTML that needs no other file: a table a month with its heads marked
/// up for readers of screens, one month a sheet in print, in the direction of the language. Fridays
/// are set off, changes of daylight saving marked, and so is today where it lies in the year.
std::string HtmlTimetable(const Timetable& table, const TimetableWords& words, Date today);

}  // namespace horavex
