#pragma once

#include <string>

#include "base/date.h"

namespace horavex {

/// The user's regional forms of dates, times and numbers. A time is rounded to a whole second
/// before anything is dropped from it. Never fails.
class RegionalFormats {
public:
    virtual ~RegionalFormats() = default;

    /// Hours and minutes: "05:31 AM".
    virtual std::string MediumTime(Date time) const = 0;

    /// Hours of the dial and minutes, with the half of the day, whatever the locale's own form:
    /// "05:31 PM".
    virtual std::string TwelveHourTime(Date time) const = 0;

    /// With seconds and without a zone's name: "5:31:00 AM".
    virtual std::string LongTime(Date time) const = 0;

    /// "Saturday, November 21, 2026".
    virtual std::string LongDate(Date date) const = 0;

    /// "11/21/2026".
    virtual std::string ShortDate(Date date) const = 0;

    /// The weekday's full name, the form "dddd".
    virtual std::string WeekdayName(Date date) const = 0;

    /// "November 2026".
    virtual std::string MonthAndYear(Date date) const = 0;

    /// The character between whole and fraction.
    virtual char DecimalMark() const = 0;
};

}  // namespace horavex
