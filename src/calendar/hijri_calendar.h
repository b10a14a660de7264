#pragma once

#include "base/date.h"

namespace horavex {

/// A date of the arithmetic Hijri calendar: 30-year cycles in which the years 2, 5, 7, 10, 13,
/// 16, 18, 21, 24, 26 and 29 have 355 days, counted from the civil epoch, Friday 16 July 622
/// (Julian). Source of the rule: E. M. Reingold and N. Dershowitz, Calendrical Calculations.
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
