#pragma once

#include <string>

#include "engine/zone_clock.h"
#include "sky/rise_set.h"

namespace horavex {

/// A place under the sky.
struct SkyPlace {
    std::string name;
    Observer observer;
    ZoneClock clock;
};

/// The accepted place with the clock of the program's year.
SkyPlace AcceptedSkyPlace();

/// The day of a place's clock that holds an instant.
SkySpan DayAround(const ZoneClock& clock, Date universal);

/// A Gregorian year of a place's clock.
SkySpan YearOf(const ZoneClock& clock, int year);

}  // namespace horavex
