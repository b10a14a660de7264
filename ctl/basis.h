#pragma once

#include <string>

#include "ctl/command.h"
#include "engine/moment.h"

namespace horavex {

// What the times stand on, and the moments themselves, for scripts and for people.

/// "timeZone" at a moment of the working clock, "method" and "highLatitudeRule".
void AddBasis(Json& object, Date now);

/// The same as lines, one each for what there is.
std::string BasisText(Date now);

/// The moments of a day, each with the date and the offset that its clock shows then.
Json MomentsJson(Date day, const DayMoments& moments);

/// "around" with the times around a day of the calculated year, where an option asks for them.
void AddAround(Json& object, Date day);

/// The days of CurrentYear.
std::size_t DaysOfYear();

}  // namespace horavex
