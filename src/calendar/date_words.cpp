#include "calendar/date_words.h"

#include "engine/ruled_year.h"
#include "lang/filled_text.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

std::string MonthName(int monthNumber) {
    constexpr const char* kNames[] = {"January", "January",   "February", "March",
                                      "April",   "May",       "June",     "July",
                                      "August",  "September", "October",  "November"};
    return monthNumber >= 0 && monthNumber <= 11 ? kNames[monthNumber] : "December";
}

std::string GregorianMonthName(int month) {
    return GetLangString("timetables", "Month" + std::to_string(month), MonthName(month));
}

std::string DayOfMonth(int day) {
    return day == 1 ? GetLangString("timetables", "FirstOfMonth", "1") : std::to_string(day);
}

std::string HijriDateText(const HijriTexts& date) {
    std::string text = GetLangString("timetables", "HijriDate", "{day} {month} {year}");
    text = FilledText(text, "{day}", date.day == "1" ? DayOfMonth(1) : date.day);
    return FilledText(FilledText(text, "{month}", date.monthName), "{year}", date.year);
}

HijriTexts HijriToday() {
    const HijriDate today = RuledHijriDate(Ports().clock.Today());
    return {std::to_string(today.day), HijriMonthName(today.month), std::to_string(today.year)};
}

std::string HijriMonthName(int month) {
    return ReadPackString("other", std::to_string(month), "", kPackNameBuffer);
}

}  // namespace horavex
