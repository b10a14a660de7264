#pragma once

#include <QLocale>

#include "platform/regional_formats.h"

namespace horavex {

/// The forms of a locale, the user's by default: there LC_TIME decides on dates and times and
/// LC_NUMERIC on numbers, or LC_ALL on both. Blanks that must not break become plain ones, and the
/// locale's own digits plain digits: which ones users see is chosen elsewhere. Dates of years 1 to
/// 9999.
class QtFormats : public RegionalFormats {
public:
    explicit QtFormats(QLocale locale = QLocale::system());

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
    // Patterns of the toolkit. Many times are told every second, and one takes long to make.
    QLocale locale_;
    QString mediumTime_;
    QString longTime_;
    QString shortDate_;
};

}  // namespace horavex
