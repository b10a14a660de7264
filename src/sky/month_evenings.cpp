#include "sky/month_evenings.h"

#include <algorithm>
#include <cmath>

#include "calendar/hijri_calendar.h"
#include "sky/phases.h"

namespace horavex {

namespace {

constexpr std::size_t kUsualEvening = 2;  // in most months and places
constexpr double kNoon = 0.5;
constexpr double kTurn = 360.0;  // degrees

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

/// The first evening on which somebody sees the crescent, or the end.
auto FirstSight(const MonthEvenings& month, Criterion criterion, Sight sight) {
    return std::ranges::find_if(month.evenings, [&](const DatedEvening& evening) {
        return KindOf(evening.crescent, month.newMoon) == EveningKind::kJudged &&
               evening.crescent->Of(criterion).letter <= Worst(criterion, sight);
    });
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

Date SolarDay(const Lookout& lookout, Date day) {
    return std::floor(lookout.universalOf(day + kNoon) + lookout.observer.longitude / kTurn);
}

std::optional<Date> FirstDay(const MonthEvenings& month, Criterion criterion, Sight sight) {
    const auto seen = FirstSight(month, criterion, sight);
    return seen == month.evenings.end() ? std::nullopt : std::optional(seen->day + 1.0);
}

std::size_t EveningOfSight(const MonthEvenings& month, Criterion criterion) {
    const auto seen = FirstSight(month, criterion, Sight::kAided);
    return seen == month.evenings.end() ? kUsualEvening
                                        : static_cast<std::size_t>(seen - month.evenings.begin());
}

}  // namespace horavex
