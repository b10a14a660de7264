#include "timetables/timetable.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>

#include "base/rounding.h"
#include "engine/angle.h"
#include "engine/current_year.h"
#include "engine/moments.h"
#include "engine/ruled_year.h"
#include "engine/solar_event.h"
#include "geo/qibla.h"
#include "store/location_record.h"
#include "store/settings_record.h"
#include "store/stored_values.h"

namespace horavex {

namespace {

TimetableDay TakeDay(std::size_t row) {
    const Date date = DateSerial(CurrentYear, 1, 1) + static_cast<double>(row);
    TimetableDay day = {
        date, RuledHijriDate(date), IsDaylightDay(date, ActiveSettings), DaylightChange::kNone, {}};
    const DayMoments moments = MomentsOfRow(row);
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        // What is no time of any day, a damaged zone's, has no text either.
        if (std::fabs(moments[prayer].hours) < NoEvent) {
            day.hours[prayer] = moments[prayer].hours;
        }
    }
    return day;
}

/// The turn of the year is no change.
void MarkChanges(std::vector<TimetableDay>& days) {
    for (std::size_t row = 1; row < days.size(); ++row) {
        if (!days[row - 1].daylight && days[row].daylight) {
            days[row].change = DaylightChange::kBegins;
        } else if (days[row - 1].daylight && !days[row].daylight &&
                   days[row - 1].change == DaylightChange::kNone) {
            days[row - 1].change = DaylightChange::kEnds;
        }
    }
}

std::string IsoDate(int year, int month, int day) {
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, month, day);
    return text;
}

}  // namespace

Timetable TakeTimetable() {
    Timetable table = {CurrentYear,
                       ActiveCityText,
                       StoredCoord(ActiveLocation.City.Latitude),
                       StoredCoord(ActiveLocation.City.Longitude),
                       ActiveSettings.TimeZone,
                       ActiveSettings.FajrAngle,
                       ActiveIshaAngle,
                       ActiveSettings.AsrRatio,
                       QiblaDegrees < 0.0 ? QiblaDegrees + 360.0 : QiblaDegrees,
                       {}};
    const std::size_t count = LeapFlag == 1 ? 366 : 365;
    for (std::size_t row = 0; row < count; ++row) {
        table.days.push_back(TakeDay(row));
    }
    MarkChanges(table.days);
    return table;
}

std::vector<TimetableDay> DaysOfMonth(const Timetable& table, int month) {
    std::vector<TimetableDay> days;
    std::copy_if(
        table.days.begin(), table.days.end(), std::back_inserter(days),
        [month](const TimetableDay& day) { return CivilFromDate(day.date).month == month; });
    return days;
}

DayMinute MinuteOf(Date day, double hours) {
    const double minutes = std::floor(RoundHalfEven(hours * 3600.0) / 60.0);
    const double days = std::floor(minutes / 1440.0);
    return {day + days, static_cast<int>(minutes - days * 1440.0)};
}

std::string IsoDate(const CivilDate& date) {
    return IsoDate(date.year, date.month, date.day);
}

std::string IsoDate(const HijriDate& date) {
    return IsoDate(date.year, date.month, date.day);
}

std::string IsoTime(int minuteOfDay) {
    char text[16];
    std::snprintf(text, sizeof text, "%02d:%02d", minuteOfDay / 60, minuteOfDay % 60);
    return text;
}

std::string PlainNumber(double value) {
    char text[32];
    const auto end = std::to_chars(text, text + sizeof text, value).ptr;
    return std::string(text, end);
}

}  // namespace horavex
