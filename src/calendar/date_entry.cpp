#include "calendar/date_entry.h"

#include "calendar/hijri_converter.h"
#include "engine/angle.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

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
