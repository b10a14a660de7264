#pragma once

#include "skywindows/sky_page.h"
#include "skywindows/sky_place.h"

namespace horavex {

/// The phases of a year by the clock of a place, a row a turn of the moon; the one that runs at an
/// instant is the present row.
SkyPage PhasesPage(const Almanac& almanac, const SkyPlace& place, int year, Date now);

}  // namespace horavex
