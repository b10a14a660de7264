#pragma once

#include <optional>
#include <vector>

#include "base/bytes.h"
#include "base/date.h"
#include "calendar/hijri_calendar.h"

namespace horavex {

/// The months of the Umm al-Qura calendar, the civil calendar of Saudi Arabia, as published and
/// not as any rule gives them: the years 1356 to 1500 (14 March 1937 to 16 November 2077). At both
/// ends it meets the arithmetic calendar on the day, so that one goes over into the other.
class UmmAlQura {
public:
    static constexpr const char* kFile = "Dat\\UQ.DAT";

    /// Reads the file. Throws FileFault for a missing one and BoundsFault for a damaged one.
    UmmAlQura();

    /// What the file holds. Throws BoundsFault for damaged bytes.
    explicit UmmAlQura(ByteView table);

    /// The day that holds the moment; nothing outside the table.
    std::optional<HijriDate> HijriOf(Date date) const;

    /// Midnight that begins the day; nothing for a year outside the table. A day outside the month
    /// carries on. month: 1 to 12.
    std::optional<Date> DateOf(const HijriDate& hijri) const;

private:
    int firstYear_ = 0;
    std::vector<Date> monthStarts_;  // of every month, and of the one behind the last
};

/// The same for every day: by the arithmetic calendar outside the table.
HijriDate HijriOf(const UmmAlQura& published, Date date);
Date DateOf(const UmmAlQura& published, const HijriDate& hijri);

}  // namespace horavex
