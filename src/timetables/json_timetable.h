#pragma once

#include <string>

#include "timetables/timetable.h"

namespace horavex {

/// The table as one JSON object (RFC 8259), a line a day. Each day has its times for people
/// ("05:31", of 24 hours) and its hours as numbers that read back exactly; null for no event.
std::string JsonTimetable(const Timetable& table);

}  // namespace horavex
