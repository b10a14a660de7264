#pragma once

#include "platform/regional_formats.h"

namespace horavex {

/// The forms of English (United States), whatever the locale of the process. Dates of years 1
/// to 9999.
class FixedFormats : public RegionalFormats {
public:
    std::string MediumTime(Date time) const override;
    std::string TwelveHourTime(Date time) const override { return MediumTime(time); }
    std::string LongTime(Date time) const override;
    std::string LongDate(Date date) const override;
    std::string ShortDate(Date date) const override;
    std::string WeekdayName(Date date) const override;
    std::string MonthAndYear(Date date) const override;
    char DecimalMark() const override { return '.'; }
};

}  // namespace horavex
