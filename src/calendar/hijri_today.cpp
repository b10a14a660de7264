#include "calendar/hijri_today.h"

#include "calendar/current_calendar.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

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
