#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "sky/crescent.h"

namespace horavex {

/// An evening on the calendar.
struct DatedEvening {
    Date day;                                 // midnight that begins it on the local calendar
    std::optional<CrescentEvening> crescent;  // nothing where the sun does not set
};

/// As many as the latitude of London needs in autumn, where the young moon stays low for days.
inline constexpr int kMonthEvenings = 5;

/// The Hijri years whose evenings lie in the almanac's years.
inline constexpr int kFirstCrescentYear = 1318;
inline constexpr int kLastCrescentYear = 1523;

/// The evenings among which the crescent of a month comes into sight.
struct MonthEvenings {
    Date newMoon;  // Universal Time
    std::vector<DatedEvening>
        evenings;  // from the day before the new moon's own on, kMonthEvenings
};

/// Where somebody looks for the moon, and the instant at which a time of the clock there is. The
/// local time is a date with its time of day; the answer is Universal Time.
struct Lookout {
    Observer observer;
    std::function<Date(Date local)> universalOf;
    std::function<Date(Date universal)> localOf;
};

/// The evenings around the new moon that is nearest to the beginning of a month of the arithmetic
/// Hijri calendar. month: 1 to 12.
MonthEvenings EveningsOfMonth(const Almanac& almanac, const Lookout& lookout, int year, int month);

/// The date of the sun at the noon of a day of the calendar, as a map has it: it is the day before
/// or after where the clock of a place counts it to the other side of the date line.
Date SolarDay(const Lookout& lookout, Date day);

/// How somebody looks for the crescent. The naked eye takes the classes A and B of either
/// criterion; optical aid takes Yallop's to D and Odeh's to C.
enum class Sight { kNakedEye, kAided };

/// The day behind the first evening on which a criterion lets the crescent be seen: the first of
/// the month for who sees it so. Nothing where none of the evenings does.
std::optional<Date> FirstDay(const MonthEvenings& month, Criterion criterion, Sight sight);

/// Which of the evenings shows most on a map: the first on which the crescent can be seen from the
/// place, be it with optical aid. The third where none of them is.
std::size_t EveningOfSight(const MonthEvenings& month, Criterion criterion);

}  // namespace horavex
