#include "calendar/date_entry.h"

#include <algorithm>
#include <string>

#include "base/date.h"
#include "base/text.h"
#include "calendar/current_calendar.h"
#include "calendar/hijri_calendar.h"
#include "calendar/hijri_converter.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

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

// The line of the day is not translated.
void RefuseDateEntry() {
    Ports().dialogs.ShowMessage(
        GetLangString("msg", "9", "Please check Day, Month, and Year for valid entry.") + Crlf +
            "Valid entry for Day 1-31." + Crlf +
            GetLangString("msg", "10", "Valid entry for Month 1-12.") + Crlf +
            GetLangString("msg", "11", "Valid entry for Year >= 1."),
        "", MessageIcon::kCritical);
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

std::optional<std::string> ConvertDateEntry(Conversion conversion, std::int16_t year, int month,
                                            int day) {
    const HijriConverter converter;
    if (!IsDateEntry(year, month, day)) {
        RefuseDateEntry();
        return std::nullopt;
    }
    return conversion == Conversion::kToHijri ? converter.CalculateHijri(year, month, day)
                                              : converter.CalculateGregorian(year, month, day);
}

bool IsDateEntry(int year, int month, int day) {
    return day >= 1 && day <= 31 && month >= 1 && month <= 12 && year >= 1;
}

}  // namespace horavex
