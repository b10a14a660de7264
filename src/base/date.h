#pragma once

#include <cstdint>

namespace horavex {

/// A date and time: days since 30 December 1899, local clock, the fraction being the time of
/// day. Whole days of 1900-03-01 onward agree with the serial dates of spreadsheets.
using Date = double;

inline constexpr double kSecondsPerDay = 86400.0;

/// A calendar date of the proleptic Gregorian calendar.
struct CivilDate {
    int year;   // 1 to 9999
    int month;  // 1 to 12
    int day;    // 1 to 31
};

/// Midnight that begins the given Gregorian day. A month or day outside its range carries into
/// the next field, so that day 0 is the last day of the month before.
Date DateSerial(int year, int month, int day);

/// The given time of day as a fraction of a day.
double TimeSerial(int hour, int minute, int second);

/// The Gregorian day that holds the moment, whatever `CurrentCalendar` says.
CivilDate CivilFromDate(Date date);

/// 0 Sunday to 6 Saturday.
int Weekday(Date date);

/// True for a day that the Gregorian calendar has, years 1 to 9999.
bool IsCivilDate(int year, int month, int day);

/// A time of day in whole seconds; the day's turn is folded away.
struct ClockTime {
    int hour;    // 0 to 23
    int minute;  // 0 to 59
    int second;  // 0 to 59
};

/// The time of day of a moment, rounded to the nearest whole second (ties to even) first:
/// 23:59:59.7 is 0:00:00.
ClockTime ClockTimeOf(Date date);

/// The same as a count of seconds since midnight, 0 to 86399.
int SecondOfDay(Date date);

}  // namespace horavex
