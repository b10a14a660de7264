#pragma once

#include <optional>

#include "calendar/hijri_calendar.h"
#include "sky/month_evenings.h"

namespace horavex {

/// The first day of a month for who sees the crescent by a criterion; nothing where it does not
/// come into sight on the evenings that were looked at.
struct SightedDays {
    std::optional<Date> nakedEye;
    std::optional<Date> aided;
};

/// The first day of a month by each way to begin it.
struct FirstDays {
    SightedDays yallop;
    SightedDays odeh;
    std::optional<Date> ummAlQura;  // nothing outside the published table
    Date arithmetic;
};

/// month: the evenings of the month that begins with that date. Throws as UmmAlQura does.
FirstDays FirstDaysOf(const MonthEvenings& month, const HijriDate& first);

}  // namespace horavex
