#include "calendar/date_words.h"

#include "calendar/current_calendar.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

std::string MonthName(int monthNumber) {
    constexpr const char* kNames[] = {"January", "January",   "February", "March",
                                      "April",   "May",       "June",     "July",
                                      "August",  "September", "October",  "November"};
    return monthNumber >= 0 && monthNumber <= 11 ? kNames[monthNumber] : "December";
}

HijriTexts HijriToday() {
    const CalendarScope hijri(kHijriCalendar);
    const Date today = Ports().clock.Today();
    return {std::to_string(DayOf(today)), HijriMonthName(MonthOf(today)),
            std::to_string(YearOf(today))};
}

std::string HijriMonthName(int month) {
    return ReadPackString("other", std::to_string(month), "", kPackNameBuffer);
}

}  // namespace horavex
