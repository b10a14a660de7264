#pragma once

#include "skywindows/sky_page.h"
#include "skywindows/sky_place.h"

namespace horavex {

/// Sun and moon on the day of an instant, and how they stand then.
SkyPage TodayPage(const Almanac& almanac, const SkyPlace& place, Date now);

}  // namespace horavex
