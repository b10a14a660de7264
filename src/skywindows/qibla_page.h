#pragma once

#include "skywindows/sky_page.h"
#include "skywindows/sky_place.h"

namespace horavex {

/// When the sun shows the qibla: the instants of the day that holds one, and the two of a year at
/// which it stands over Mecca.
SkyPage QiblaPage(const Almanac& almanac, const SkyPlace& place, int year, Date now);

}  // namespace horavex
