#include "calendar/current_calendar.h"

#include "base/program_state.h"
#include "calendar/hijri_calendar.h"

namespace horavex {

std::int16_t CurrentCalendar = kGregorianCalendar;

namespace {

const ProgramStateReset reset([] { CurrentCalendar = kGregorianCalendar; });

bool Hijri() {
    return CurrentCalendar == kHijriCalendar;
}

}  // namespace

int DayOf(Date date) {
    return Hijri() ? HijriFromDate(date).day : CivilFromDate(date).day;
}

int MonthOf(Date date) {
    return Hijri() ? HijriFromDate(date).month : CivilFromDate(date).month;
}

int YearOf(Date date) {
    return Hijri() ? HijriFromDate(date).year : CivilFromDate(date).year;
}

CalendarScope::CalendarScope(std::int16_t calendar) : former_(CurrentCalendar) {
    CurrentCalendar = calendar;
}

CalendarScope::~CalendarScope() {
    CurrentCalendar = former_;
}

}  // namespace horavex
