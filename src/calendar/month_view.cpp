#include "calendar/month_view.h"

#include "calendar/current_calendar.h"
#include "calendar/date_words.h"

namespace horavex {

void MonthView::CalculateCalendarMonth(int month, std::int16_t year) {
    const bool hijri = CurrentCalendar == kHijriCalendar;
    firstDay_ = hijri ? converter_.ToGregorian({year, month, 1}) : DateSerial(year, month, 1);
    header_ = (hijri ? HijriMonthOrDefault(month) : MonthName(month)) + " " + std::to_string(year);
}

bool MonthView::GotoFirstDay() {
    cursor_ = firstDay_;
    return !header_.empty();
}

int MonthView::GetHijriDay() const {
    return converter_.ToHijri(cursor_).day;
}

int MonthView::GetGregorianDay() const {
    return CivilFromDate(cursor_).day;
}

int MonthView::GetDayOfWeek() const {
    return Weekday(cursor_);
}

}  // namespace horavex
