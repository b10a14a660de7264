#pragma once

#include "skywindows/sky_page.h"
#include "skywindows/sky_place.h"

namespace horavex {

/// The eclipses of a year with what a place sees of them, and among them what the lists of the moon
/// window name in vain.
SkyPage EclipsesPage(const Almanac& almanac, const SkyPlace& place, int year);

}  // namespace horavex
