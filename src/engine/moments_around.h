#pragma once

#include <vector>

#include "base/date.h"
#include "engine/moment.h"

namespace horavex {

/// A moment on the local calendar, not on the day that it is told on.
struct DatedMoment {
    Prayer prayer = kFajr;
    Date at = 0.0;
    Moment moment;  // as its own day tells it
};

/// All moments of yesterday, today and tomorrow by the program's year, day by day; none for a day
/// outside the table. Over New Year the day itself stands in for the one that the table lacks.
std::vector<DatedMoment> MomentsAround(Date now);

/// Seconds from a moment to now, to the microsecond; negative before it. A clock that is put
/// forward or back meanwhile does not count.
double SecondsSince(const DatedMoment& moment, Date now);

}  // namespace horavex
