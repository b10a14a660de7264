#pragma once

#include "base/date.h"
#include "calendar/hijri_calendar.h"
#include "config/adjustments.h"
#include "engine/moment.h"

namespace horavex {

/// A day as adjustments would have it.
struct AdjustedDay {
    bool isCalculated = false;  // their year gives no reason to give up
    DayMoments moments;         // where it is
    HijriDate hijri{};
};

/// A day at the accepted place under the accepted settings, with other adjustments. Nothing of the
/// program's year is touched.
AdjustedDay DayUnder(const Adjustments& adjustments, Date day);

}  // namespace horavex
