#pragma once

#include <cstdint>
#include <string>

#include "base/date.h"
#include "calendar/hijri_converter.h"

namespace horavex {

/// One month of the calendar that CurrentCalendar selects, with a cursor on a day of it.
class MonthView {
public:
    /// Prepares a month. month: 1 to 12.
    void CalculateCalendarMonth(int month, std::int16_t year);

    /// Moves the cursor to the month's first day; false where no month is prepared.
    bool GotoFirstDay();

    /// Day of the month at the cursor in either calendar, and its weekday, 0 Sunday to 6 Saturday.
    int GetHijriDay() const;
    int GetGregorianDay() const;
    int GetDayOfWeek() const;

    /// "Ramadan 1448", "November 2026"; empty where no month is prepared.
    const std::string& GetMonthHeader() const { return header_; }

private:
    HijriConverter converter_;
    Date firstDay_ = 0.0;
    Date cursor_ = 0.0;
    std::string header_;
};

}  // namespace horavex
