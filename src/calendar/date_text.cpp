#include "calendar/date_text.h"

#include <algorithm>
#include <string>

#include "base/date.h"
#include "base/text.h"
#include "calendar/current_calendar.h"
#include "calendar/hijri_calendar.h"

namespace horavex {

namespace {

constexpr std::size_t kMostDigits = 5;
constexpr int kLastYear = 9999;

std::optional<int> ReadNumber(std::string_view text) {
    const std::string_view digits = Trim(text);
    if (digits.empty() || digits.size() > kMostDigits ||
        !std::all_of(digits.begin(), digits.end(), IsDigit)) {
        return std::nullopt;
    }
    return std::stoi(std::string(digits));
}

bool IsHijriDate(const DateNumbers& date) {
    return date.year >= 1 && date.year <= kLastYear && date.month >= 1 && date.month <= 12 &&
           date.day >= 1 && date.day <= DaysInHijriMonth(date.year, date.month);
}

}  // namespace

std::optional<DateNumbers> ReadDateText(std::string_view text) {
    const auto parts = Split(text, '/');
    if (parts.size() != 3) {
        return std::nullopt;
    }
    const auto day = ReadNumber(parts[0]);
    const auto month = ReadNumber(parts[1]);
    const auto year = ReadNumber(parts[2]);
    if (!day || !month || !year) {
        return std::nullopt;
    }
    return DateNumbers{*day, *month, *year};
}

bool IsDateText(std::string_view text) {
    const auto date = ReadDateText(text);
    if (!date) {
        return false;
    }
    return CurrentCalendar == kHijriCalendar ? IsHijriDate(*date)
                                             : IsCivilDate(date->year, date->month, date->day);
}

}  // namespace horavex
