#pragma once

#include <optional>
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

}  // namespace horavex
