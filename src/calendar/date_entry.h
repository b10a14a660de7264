#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace horavex {

/// The numbers of a text of the form day/month/year.
struct DateNumbers {
    int day;
    int month;
    int year;
};

/// Blanks around a number are passed over. Nothing for any other text, and for a number of more
/// than five digits.
std::optional<DateNumbers> ReadDateText(std::string_view text);

/// True for day/month/year of a day that the calendar of CurrentCalendar has, years 1 to 9999.
bool IsDateText(std::string_view text);

enum class Conversion { kToHijri, kToGregorian };

/// Converts a date that was entered. A day outside 1 to 31, a month outside 1 to 12 and a year
/// below 1 are refused with a message, and nothing comes back. Throws FileFault without the table
/// of months.
std::optional<std::string> ConvertDateEntry(Conversion conversion, std::int16_t year, int month,
                                            int day);

/// What the entry is checked by.
bool IsDateEntry(int year, int month, int day);

}  // namespace horavex
