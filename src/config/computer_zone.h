#pragma once

#include "base/date.h"
#include "store/zone_year.h"

namespace horavex {

/// What the computer's own time zone says about the year of a day.
ZoneYear FindComputerZone(Date today);

/// Fills the settings window's zone box and daylight controls from the computer's zone.
void UseComputerZone();

}  // namespace horavex
