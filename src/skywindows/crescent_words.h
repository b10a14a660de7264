#pragma once

#include <string>

#include "calendar/hijri_calendar.h"
#include "sky/map_drawing.h"
#include "skywindows/sky_place.h"

namespace horavex {

/// A text of the pack's section "crescent".
std::string CrescentWord(const char* key, const char* english);

/// The classes in the words of the current pack.
ClassWords PackClassWords();

std::string CriterionName(Criterion criterion);

/// "10 March 2024" of a day of the calendar.
std::string CalendarDate(Date day);

/// "New moon: 10 March 2024  11:00 AM", by a place's clock.
std::string NewMoonText(const ZoneClock& clock, Date newMoon);

/// What stands on the map of an evening of a Hijri month.
MapText MapTextOf(const HijriDate& month, const VisibilityMap& map, Criterion criterion);

}  // namespace horavex
