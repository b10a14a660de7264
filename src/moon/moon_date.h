#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace horavex {

// The date and clock of an instant as the moon tables and eclipse lists show them. Both take the
// user's zone in whole hours, and neither looks at daylight saving. Two manners are kept: a
// negative zone moves the date later by its size, like a positive one; and the zone counts twice,
// once for the date and once more for the clock, so that a row of zone 3 tells three hours more
// than the clock there (MoonDateTest.ZoneEastCountsTwice and ZoneWestMovesTheDateLaterToo).

/// The zone of a text, as the settings window's box holds it, floored to whole hours: -5.5 counts
/// as -6. Throws TypeMismatchFault for a text that is no number.
double WholeZone(const std::string& text);

/// A date of the user's zone.
struct MoonDate {
    std::int16_t MoonMonth;  // 1 to 12
    std::int16_t MoonYear;
    double MoonDay;  // day of the month with its fraction of the day
};

/// Turns a Julian day into a date of a zone. julianDay keeps the shift by the zone and by half a
/// day, so that it counts from midnight afterwards.
MoonDate MoonDateFromDay(double& julianDay, double zone);

/// The clock of a date: "14hrs 5min" behind that many blanks, 0 or 1. Hours beyond 24 lose 24
/// without a change of the date; 24 itself stays.
std::string MoonClockText(const MoonDate& date, double zone, int leadingBlanks);

/// English name of the weekday of a Julian day, to which it adds 1.5 in place.
std::string WeekDayText(double& julianDay);

/// "6 January 2000": MoonDay's day, the month's English name, the year.
std::string MoonDateText(const MoonDate& date);

/// A table of moon rows: 13 of them, and a last entry that stays empty.
inline constexpr std::size_t kMoonRows = 13;
using MoonRows = std::array<std::string, kMoonRows + 1>;

}  // namespace horavex
