#pragma once

#include <optional>
#include <vector>

#include "base/date.h"
#include "calendar/hijri_calendar.h"

namespace horavex {

/// The months of the Umm al-Qura calendar, the civil calendar of Saudi Arabia, as published and
/// not as any rule gives them: the years 1356 to 1500 (14 March 1937 to 16 November 2077). At both
/// ends it meets the arithmetic calendar on the day, so that one goes over into the other.
class UmmAlQura {
public:
    /// Reads "Dat/UQ.DAT". Throws FileFault for a missing file and BoundsFault for a damaged one.
    UmmAlQura();

    /// The day that holds the moment; nothing outside the table.
    std::optional<HijriDate> HijriOf(Date date) const;

    /// Midnight that begins the day; nothing for a year outside the table. A day outside the month
    /// carries on. month: 1 to 12.
    std::optional<Date> DateOf(const HijriDate& hijri) const;

private:
    int firstYear_ = 0;
    std::vector<Date> monthStarts_;  // of every month, and of the one behind the last
};

}  // namespace horavex
