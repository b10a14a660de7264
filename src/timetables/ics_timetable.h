#pragma once

#include <string>

#include "timetables/timetable.h"
#include "timetables/timetable_words.h"

namespace horavex {

/// The table as a calendar by RFC 5545: an event at the minute of each prayer and of sunrise, with
/// an alarm at each but sunrise, which calls nobody. Times are local ones of a zone that stands in
/// the file: the settings' own hours and days of daylight saving, whatever the law of the place.
///
/// An event is known by its day, its prayer and the coordinates, so that a later import of the
/// same place updates it. stamp: the moment of writing, in UTC.
std::string IcsTimetable(const Timetable& table, const TimetableWords& words, Date stamp);

}  // namespace horavex
