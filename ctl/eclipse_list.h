#pragma once

#include "ctl/command.h"
#include "ctl/place_options.h"

namespace horavex {

/// The eclipses of a year of the place's clock as the sky has them and as the place sees them, and
/// what the told lists name beside them. Refuses the usage for a year that the almanac has not.
void PrintLocalEclipses(Session& session, const PlaceOptions& place, int year);

}  // namespace horavex
