#pragma once

#include "sky/first_days.h"
#include "skywindows/sky_page.h"
#include "skywindows/sky_place.h"

namespace horavex {

/// The evenings of a month as a place has them, by its clock. current: the one that is set off.
SkyPage EveningsPage(const MonthEvenings& month, const SkyPlace& place, std::size_t current);

/// The first days of the month by each way to begin it.
SkyPage FirstDaysPage(const FirstDays& days);

}  // namespace horavex
