#pragma once

#include "base/date.h"

namespace horavex {

// The arithmetic (tabular) Hijri calendar after E. M. Reingold and N. Dershowitz, Calendrical
// Calculations: cycles of 30 years with 10,631 days, in which the years 2, 5, 7, 10, 13, 16, 18,
// 21, 24, 26 and 29 have 355 days; odd months of 30 days, even ones of 29. Epoch: the civil one,
// Friday 16 July 622 (Julian), which is day -466,579 of this program's count. No year bounds it.
// Against the published Umm al-Qura months of 1356 to 1500 its months begin on the same day in 35
// of 100, one day later in 59, two later in 5 and one earlier in 1; what is seen in the sky may
// differ by as much. A mean month is 2.9 seconds shorter than the Moon's: a day in 2,400 years.

/// A date of that calendar.
struct HijriDate {
    int year;   // 1 is the year of the Hijra; earlier years are 0 and below
    int month;  // 1 Muharram to 12 Dhu al-Hijja
    int day;    // 1 to 30

    bool operator==(const HijriDate&) const = default;
};

bool IsHijriLeapYear(int year);

/// 29 or 30 days. month: 1 to 12.
int DaysInHijriMonth(int year, int month);

/// The day that holds the moment. It turns at midnight, not at sunset.
HijriDate HijriFromDate(Date date);

/// Midnight that begins the given day. month: 1 to 12; a day outside the month carries on.
Date DateFromHijri(const HijriDate& hijri);

}  // namespace horavex
