#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/date.h"
#include "calendar/hijri_calendar.h"
#include "engine/moment.h"
#include "engine/moment_rules.h"
#include "engine/year_table.h"

namespace horavex {

enum class DaylightChange {
    kNone,
    kBegins,  // the first day of daylight saving
    kEnds,    // the last one
};

/// The clock of a day at its noon.
struct DayClock {
    double offset;          // hours east of Greenwich
    bool daylight;          // it is the one of daylight saving
    DaylightChange change;  // a day that is both begins
};

/// Those of days from the first of January of CurrentYear on, under the accepted settings.
std::vector<DayClock> TakeClocks(std::size_t days);

/// The offset without daylight saving; of a day at least.
double StandardHours(std::span<const DayClock> clocks);

struct TimetableDay : DayClock {
    Date date;                                                // midnight that begins it
    HijriDate hijri;                                          // by the calendar of the face
    std::array<std::optional<Moment>, kPrayerCount> moments;  // none for NoEvent
    std::vector<std::optional<Moment>> around;  // by AroundTime; empty unless an option asks

    /// The columns of a table: the moments, then the times around the day.
    std::vector<std::optional<Moment>> Columns() const;
};

/// The year's table with its place and method, as all writers of files and all pictures take it.
struct Timetable {
    int year;                    // Gregorian
    std::string place;           // display text
    double latitude;             // degrees, north positive
    double longitude;            // degrees, east positive
    double timeZone;             // hours east of Greenwich, without daylight saving
    std::vector<ZoneSpan> zone;  // of the city's own clock; empty for the settings' zone
    std::string zoneName;        // of that zone
    std::string method;          // its English name; empty for angles of one's own
    HighLatitudeRule highLatitude;
    double fajrAngle;                // degrees of depression
    double ishaAngle;                // degrees of depression
    int ishaInterval;                // minutes after Maghrib, where they count instead; 0
    int ishaIntervalRamadan;         // those of Ramadan, where they are others; 0
    double asrRatio;                 // shadow factor
    double qiblaDegrees;             // clockwise from north, [0, 360)
    std::vector<TimetableDay> days;  // 365 or 366, from the first of January on
};

/// The table of CurrentYear under the accepted settings.
Timetable TakeTimetable();

/// The days of a month, 1 to 12. The table must live as long.
std::span<const TimetableDay> DaysOfMonth(const Timetable& table, int month);

/// Hours that the clock which shows a local time is ahead of Greenwich. day: the one whose moment
/// it is.
double OffsetOf(const Timetable& table, const TimetableDay& day, Date local);

/// What the marks beside the times of some days mean, a line each.
std::vector<std::string> NotesOfDays(const Timetable& table, std::span<const TimetableDay> days);

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

/// "2026-06-21T23:14:05+03:00", rounded to the second. offset: hours east of Greenwich.
std::string IsoMoment(Date day, double hours, double offset);

/// "05:31", by 24 hours.
std::string IsoTime(int minuteOfDay);

/// A number of the file formats: the shortest text that reads back to it, with a point.
std::string PlainNumber(double value);

}  // namespace horavex
