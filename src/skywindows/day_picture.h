#pragma once

#include "forms/drawing.h"
#include "skywindows/sky_place.h"

namespace horavex {

/// The altitudes of sun and moon over the day that holds an instant, by the clock of a place, in an
/// area of the given size, twips: hours from left to right, degrees upward, with the horizon, the
/// bands of the twilights, and both bodies as they stand at the instant.
Drawing DayPicture(double width, double height, const Almanac& almanac, const SkyPlace& place,
                   Date now);

}  // namespace horavex
