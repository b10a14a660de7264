#pragma once

#include <cstdint>
#include <string>

#include "calendar/umm_al_qura.h"
#include "store/options.h"

namespace horavex {

/// Turns a date of one calendar into the other: by the published Umm al-Qura months where they are
/// known, arithmetically before and after. It is made anew for each conversion and lets go of the
/// table with its end. The option of days that are added to the Hijri date counts. The texts are in
/// the language of the pack, with the English names without one, and in the user's regional form.
class HijriConverter {
public:
    /// The Hijri day of a moment, and midnight that begins a Hijri day.
    HijriDate ToHijri(Date date) const;
    Date ToGregorian(const HijriDate& hijri) const;

    /// The Hijri date of a Gregorian one as a line of words with single blanks between them: the
    /// weekday, the day, the month's name, the year, "AH". Only the month's name may take more than
    /// one word. month: 1 to 12; a day outside the month carries on.
    std::string CalculateHijri(std::int16_t year, int month, int day) const;

    /// The Gregorian date of a Hijri one in the user's long form. As above.
    std::string CalculateGregorian(std::int16_t year, int month, int day) const;

private:
    UmmAlQura ummAlQura_;
    const int adjustment_ = ReadOption(option::kHijriAdjustment);  // days
};

/// Name of a Hijri month, 1 to 12, in the current pack; the English one without it.
std::string HijriMonthOrDefault(int month);

}  // namespace horavex
