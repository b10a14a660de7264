#include "terminal/ports/pack_formats.h"

#include <cstdio>

#include "lang/language_pack.h"

namespace horavex {

/// Times are asked for many times a second, and a pack is a file.
const TimetableWords& PackFormats::Words() const {
    if (!isTaken_ || language_ != currentLanguage) {
        words_ = TakeTimetableWords();
        language_ = currentLanguage;
        isTaken_ = true;
    }
    return words_;
}

bool PackFormats::IsEnglish() const {
    return Words().code == "en";
}

std::string PackFormats::MediumTime(Date time) const {
    if (!Words().hasClockOf24Hours) {
        return FixedFormats::MediumTime(time);
    }
    return LongTime(time).substr(0, 5);
}

std::string PackFormats::LongTime(Date time) const {
    if (!Words().hasClockOf24Hours) {
        return FixedFormats::LongTime(time);
    }
    const ClockTime t = ClockTimeOf(time);
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d:%02d", t.hour, t.minute, t.second);
    return text;
}

std::string PackFormats::LongDate(Date date) const {
    return IsEnglish() ? FixedFormats::LongDate(date) : Words().DayTitle(date);
}

std::string PackFormats::WeekdayName(Date date) const {
    return IsEnglish() ? FixedFormats::WeekdayName(date) : Words().WeekdayOf(date);
}

std::string PackFormats::MonthAndYear(Date date) const {
    const CivilDate civil = CivilFromDate(date);
    return IsEnglish() ? FixedFormats::MonthAndYear(date)
                       : Words().MonthTitle(civil.year, civil.month);
}

char PackFormats::DecimalMark() const {
    return Words().decimalMark;
}

}  // namespace horavex
