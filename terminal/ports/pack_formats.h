#pragma once

#include <string>

#include "platform/fixed_formats.h"
#include "timetables/timetable_words.h"

namespace horavex {

/// Dates, times and numbers as the language of the current pack writes them; terminals seldom have
/// the data of a locale. In English the fixed forms.
class PackFormats : public FixedFormats {
public:
    std::string MediumTime(Date time) const override;
    std::string TwelveHourTime(Date time) const override { return FixedFormats::MediumTime(time); }
    std::string LongTime(Date time) const override;
    std::string LongDate(Date date) const override;
    std::string WeekdayName(Date date) const override;
    std::string MonthAndYear(Date date) const override;
    char DecimalMark() const override;

private:
    const TimetableWords& Words() const;
    bool IsEnglish() const;

    mutable std::string language_;  // whose words these are
    mutable TimetableWords words_ = {};
    mutable bool isTaken_ = false;
};

}  // namespace horavex
