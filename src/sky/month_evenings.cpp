#include "sky/month_evenings.h"

#include <cmath>

#include "calendar/hijri_calendar.h"
#include "sky/phases.h"

namespace horavex {

namespace {

constexpr double kNoon = 0.5;

// The arithmetic month begins a day or two behind its new moon; half a month to either side holds
// one.
constexpr double kUsualAge = 1.5;
constexpr double kHalfMonth = 14.0;

Date NewMoonOf(const Almanac& almanac, int year, int month) {
    const Date usual = DateFromHijri({year, month, 1}) - kUsualAge;
    Date nearest = usual - 2.0 * kHalfMonth;
    for (const PhaseInstant& found :
         PhasesBetween(almanac, usual - kHalfMonth, usual + kHalfMonth)) {
        const bool nearer = std::abs(found.universal - usual) < std::abs(nearest - usual);
        nearest = found.phase == Phase::kNewMoon && nearer ? found.universal : nearest;
    }
    return nearest;
}

/// The last letter that will do.
char Worst(Criterion criterion, Sight sight) {
    constexpr char kNakedEye = 'B';
    return sight == Sight::kNakedEye ? kNakedEye : criterion == Criterion::kYallop ? 'D' : 'C';
}

}  // namespace

MonthEvenings EveningsOfMonth(const Almanac& almanac, const Lookout& lookout, int year, int month) {
    MonthEvenings found{NewMoonOf(almanac, year, month), {}};
    const Date first = std::floor(lookout.localOf(found.newMoon)) - 1.0;
    for (int evening = 0; evening < kMonthEvenings; ++evening) {
        const Date day = first + evening;
        const Date noon = lookout.universalOf(day + kNoon);
        found.evenings.push_back(
            {day, CrescentAfter(almanac, lookout.observer, noon, found.newMoon)});
    }
    return found;
}

std::optional<Date> FirstDay(const MonthEvenings& month, Criterion criterion, Sight sight) {
    for (const DatedEvening& evening : month.evenings) {
        if (evening.crescent && evening.crescent->Of(criterion).letter <= Worst(criterion, sight)) {
            return evening.day + 1.0;
        }
    }
    return std::nullopt;
}

}  // namespace horavex
