#include "calendar/hijri_converter.h"

#include "base/unbroken.h"
#include "lang/capital.h"
#include "lang/language_pack.h"
#include "platform/platform.h"

namespace horavex {

namespace {

constexpr const char* kMonths[] = {"Muharram",   "Safar",       "Rabi'Awal", "Rabi'Thani",
                                   "Jamad Awal", "Jamad Thani", "Rajab",     "Sha'ban",
                                   "Ramadan",    "Shawwal",     "Zul Qaada", "Zul Hijja"};

}  // namespace

HijriDate HijriConverter::ToHijri(Date date) const {
    return HijriOf(ummAlQura_, date + adjustment_);
}

Date HijriConverter::ToGregorian(const HijriDate& hijri) const {
    return DateOf(ummAlQura_, hijri) - adjustment_;
}

// Readers of the line find the month and the year by counting words from both ends.
std::string HijriConverter::CalculateHijri(std::int16_t year, int month, int day) const {
    const Date date = DateSerial(year, month, day);
    const HijriDate hijri = ToHijri(date);
    return WithCapital(Unbroken(Ports().formats.WeekdayName(date))) + " " +
           std::to_string(hijri.day) + " " + HijriMonthOrDefault(hijri.month) + " " +
           std::to_string(hijri.year) + " " + Unbroken(GetLangString("other", "AH", "AH"));
}

std::string HijriConverter::CalculateGregorian(std::int16_t year, int month, int day) const {
    return Ports().formats.LongDate(ToGregorian({year, month, day}));
}

std::string HijriMonthOrDefault(int month) {
    return GetLangString("other", std::to_string(month), kMonths[month - 1]);
}

}  // namespace horavex
