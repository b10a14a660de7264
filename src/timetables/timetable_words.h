#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "base/date.h"
#include "calendar/hijri_calendar.h"
#include "engine/around_day.h"
#include "engine/year_table.h"
#include "timetables/timetable.h"

namespace horavex {

/// The words of a timetable, in the language of the current pack: its section "timetables", and
/// the Hijri months of "other". English where the pack has none.
struct TimetableWords {
    std::string code;  // of the language, as in HTML: "en"
    bool rightToLeft;
    std::string title;  // "Prayer times"
    std::string day;
    std::string hijri;
    std::array<std::string, kPrayerCount> prayers;
    std::array<std::string, kAroundCount> around;
    std::array<std::string, 12> months;       // January first
    std::array<std::string, 12> shortMonths;  // the same ones, abbreviated
    std::array<std::string, 7> weekdays;      // Sunday first
    std::array<std::string, 12> hijriMonths;  // Muharram first
    std::string latitude;
    std::string longitude;
    std::string zone;
    std::string fajrAngle;
    std::string ishaAngle;
    std::string asrRatio;
    std::string qibla;           // a bearing clockwise from north follows
    std::string daylightBegins;  // footnotes to a mark
    std::string daylightEnds;
    std::string monthPage;  // pages of the month window
    std::string yearPage;
    std::string monthPattern;    // "{month} {year}"
    std::string dayPattern;      // "{weekday}, {day} {month} {year}"
    std::string minutesPattern;  // "{minutes} min"
    std::string colon;           // with the blanks around it
    std::string comma;           // the same
    char decimalMark;
    bool hasClockOf24Hours;  // documents do; otherwise they take the user's form of a time

    /// A month by itself, with a capital: "November".
    std::string MonthAlone(int month) const;

    /// The same, abbreviated: "Nov".
    std::string MonthBriefly(int month) const;

    /// A month inside a line of words: "november 2026" where the language writes it small.
    std::string MonthInLine(int year, int month) const;

    /// "November 2026".
    std::string MonthTitle(int year, int month) const;

    /// "Saturday, 21 November 2026".
    std::string DayTitle(Date date) const;

    /// "11 Jamad Thani 1448".
    std::string HijriText(const HijriDate& date) const;

    const std::string& WeekdayOf(Date date) const;

    /// The heads of the columns of times that days like this one fill.
    std::vector<std::string> Heads(const TimetableDay& filled) const;

    /// "30.05", with the mark of the language.
    std::string NumberIn(double value) const;

    /// "30.05°".
    std::string DegreesIn(double degrees) const;

    /// A time of a day in a document: "05:31 AM+1†", "05:31+1†".
    std::string TimeIn(const TimetableDay& timesOf, const Moment& moment) const;
};

TimetableWords TakeTimetableWords();

/// The hours of the zone, and its name where it has one: "GMT +1.00, Europe/Oslo".
std::string ZoneFact(const Timetable& table, const TimetableWords& words);

/// What Isha goes by, as name and value: "Isha angle", "17.5°"; "Isha", "Maghrib + 90 min".
std::pair<std::string, std::string> IshaFact(const Timetable& table, const TimetableWords& words);

}  // namespace horavex
