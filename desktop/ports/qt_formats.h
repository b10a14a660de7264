#pragma once

#include <QLocale>

#include "platform/regional_formats.h"

namespace horavex {

/// The forms of a locale, the user's by default: there LC_TIME decides on dates and times and
/// LC_NUMERIC on numbers, or LC_ALL on both. Blanks that must not break become plain ones. Dates
/// of years 1 to 9999.
class QtFormats : public RegionalFormats {
public:
    explicit QtFormats(QLocale locale = QLocale::system()) : locale_(std::move(locale)) {}

    std::string MediumTime(Date time) const override;
    std::string TwelveHourTime(Date time) const override;
    std::string LongTime(Date time) const override;
    std::string LongDate(Date date) const override;
    std::string ShortDate(Date date) const override;
    std::string WeekdayName(Date date) const override;
    std::string MonthAndYear(Date date) const override;

    /// A point for the marks outside ASCII, which no number of the system is read with.
    char DecimalMark() const override;

private:
    QLocale locale_;
};

}  // namespace horavex
