#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/date.h"
#include "calendar/hijri_calendar.h"
#include "engine/year_table.h"

namespace horavex {

enum class DaylightChange {
    kNone,
    kBegins,  // the first day of daylight saving
    kEnds,    // the last one
};

struct TimetableDay {
    Date date;                                              // midnight that begins it
    HijriDate hijri;                                        // by the calendar of the face
    bool daylight;                                          // its times carry the daylight hour
    DaylightChange change;                                  // a day that is both begins
    std::array<std::optional<double>, kPrayerCount> hours;  // local clock; none for NoEvent
};

/// The year's table with its place and method, as all writers of files and all pictures take it.
struct Timetable {
    int year;                        // Gregorian
    std::string place;               // display text
    double latitude;                 // degrees, north positive
    double longitude;                // degrees, east positive
    double timeZone;                 // hours east of Greenwich, without the daylight hour
    double fajrAngle;                // degrees of depression
    double ishaAngle;                // degrees of depression
    double asrRatio;                 // shadow factor
    double qiblaDegrees;             // clockwise from north, [0, 360)
    std::vector<TimetableDay> days;  // 365 or 366, from the first of January on
};

/// The table of CurrentYear under the accepted settings.
Timetable TakeTimetable();

/// The days of a month, 1 to 12.
std::vector<TimetableDay> DaysOfMonth(const Timetable& table, int month);

/// The hour of a prayer in whole minutes, as every display shows it: rounded to the second, the
/// seconds then dropped. An hour of 24 or more lies on the day after.
struct DayMinute {
    Date day;    // midnight that begins it
    int minute;  // of that day, 0 to 1439
};
DayMinute MinuteOf(Date day, double hours);

/// "2026-11-21".
std::string IsoDate(const CivilDate& date);
std::string IsoDate(const HijriDate& date);

/// "05:31", by 24 hours.
std::string IsoTime(int minuteOfDay);

/// A number of the file formats: the shortest text that reads back to it, with a point.
std::string PlainNumber(double value);

}  // namespace horavex
