#pragma once

#include <string>

namespace horavex {

/// English name of a Gregorian month, whatever the language: 1 "January" to 11 "November"; 0
/// also gives "January", and any other number "December".
std::string MonthName(int monthNumber);

/// Name of a Gregorian month (1 to 12) in the current pack; the English one where it has none.
std::string GregorianMonthName(int month);

/// The day of a month inside a date: "21", and in French "1er".
std::string DayOfMonth(int day);

/// Today's Hijri date as the face shows it.
struct HijriTexts {
    std::string day;        // decimal, no padding
    std::string monthName;  // from the language pack; empty without one
    std::string year;       // decimal
};

/// "11 Jamad Thani 1448", as the language arranges it.
std::string HijriDateText(const HijriTexts& date);

/// Today by the Hijri calendar of the program's year. The day turns at local midnight.
HijriTexts HijriToday();

/// Name of a Hijri month (1 to 12) in the current pack, section "other"; empty where it has none.
std::string HijriMonthName(int month);

}  // namespace horavex
