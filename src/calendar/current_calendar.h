#pragma once

#include <cstdint>

#include "base/date.h"

namespace horavex {

inline constexpr std::int16_t kGregorianCalendar = 0;
inline constexpr std::int16_t kHijriCalendar = 1;

/// The calendar in which the three functions below answer: 0 Gregorian, 1 Hijri. Whoever changes
/// it saves the old value first and restores it.
extern std::int16_t CurrentCalendar;

/// Day of the month, month and year of a date in CurrentCalendar.
int DayOf(Date date);
int MonthOf(Date date);
int YearOf(Date date);

/// Sets CurrentCalendar and puts the former value back at the end of its life.
class CalendarScope {
public:
    explicit CalendarScope(std::int16_t calendar);
    ~CalendarScope();
    CalendarScope(const CalendarScope&) = delete;
    CalendarScope& operator=(const CalendarScope&) = delete;

private:
    std::int16_t former_;
};

}  // namespace horavex
