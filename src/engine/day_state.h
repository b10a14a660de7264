#pragma once

#include <array>
#include <cstdint>

#include "base/date.h"
#include "engine/day_view.h"

namespace horavex {

/// Today's six times as fractions of a day. Written by ShowDay, and by the day browser, which
/// the next tick repairs.
extern std::array<double, kPrayerCount> TodayTimes;

/// Index of the prayer that comes next, 6 for none left; -1 is not yet set. ShowDay fills it
/// while it is -1; the clock counts it on.
extern std::int16_t NextPrayer;

/// The day as ShowDay has last shown it. Written by ShowDay alone.
extern DayView ShownDay;

/// Day of the last ShowDay, and of the last refresh after a longer gap.
extern Date TodayDate;
extern Date LastRefreshDate;

}  // namespace horavex
