#include "engine/day_view.h"

#include <cmath>

namespace horavex {

namespace {

constexpr int kDay = static_cast<int>(kSecondsPerDay);

/// The seconds of a moment from the midnight that begins its day. Hours that are far from any day
/// are folded onto it.
int SecondOfMoment(const Moment& moment) {
    const double days = std::floor(moment.hours / 24.0);
    const int second = SecondOfDay(moment.hours / 24.0);
    return std::fabs(days) <= 1.0 ? second + static_cast<int>(days) * kDay : second;
}

/// A prayer that nobody waits for is never ahead.
bool IsAhead(const DayMoments& day, std::size_t prayer, int second) {
    return prayer != kShurooq && SecondOfMoment(day[prayer]) > second;
}

/// The first of the moments that lies ahead by more than 0 whole seconds.
std::int16_t FirstAhead(const DayMoments& day, int second) {
    std::size_t prayer = 0;
    while (prayer < kPrayerCount && !IsAhead(day, prayer, second)) {
        ++prayer;
    }
    return static_cast<std::int16_t>(prayer);
}

double RestOf(const Moment& moment, int second) {
    return static_cast<double>((SecondOfMoment(moment) - second + kDay) % kDay);
}

/// Tomorrow's Fajr, unless it comes before midnight and is over, too.
NextMoment TomorrowsFirst(const DayMoments& tomorrow, int second) {
    const bool fajrIsOver = SecondOfMoment(tomorrow[kFajr]) + kDay <= second;
    const Prayer prayer = fajrIsOver ? kZuhr : kFajr;
    return {static_cast<std::int16_t>(prayer), true, tomorrow[prayer],
            RestOf(tomorrow[prayer], second)};
}

NextMoment NextOf(const DaySource& source, const std::optional<Moment>& lateIsha, Date now) {
    const int second = SecondOfDay(now);
    if (lateIsha && SecondOfMoment(*lateIsha) > second) {
        return {static_cast<std::int16_t>(kIsha), false, *lateIsha, RestOf(*lateIsha, second)};
    }
    const std::int16_t found = FirstAhead(source.today, second);
    if (found == kNoPrayerLeft) {
        return TomorrowsFirst(source.tomorrow, second);
    }
    const Moment& moment = source.today[static_cast<std::size_t>(found)];
    return {found, false, moment, RestOf(moment, second)};
}

/// A moment of a neighbouring day in this one's hours, if it falls on this one.
std::optional<Moment> OnThisDay(Moment moment, double hours) {
    moment.hours += hours;
    const bool falls = moment.hours >= 0.0 && moment.hours < 24.0;
    return falls ? std::optional(moment) : std::nullopt;
}

}  // namespace

DayView MakeDayView(const DaySource& source, Date now) {
    DayView day;
    day.now = now;
    day.date = std::floor(now);
    day.hijri = source.hijri;
    day.place = source.place;
    day.moments = source.today;
    day.lateIsha = OnThisDay(source.yesterdaysIsha, -24.0);
    day.earlyFajr = OnThisDay(source.tomorrow[kFajr], 24.0);
    day.next = NextOf(source, day.lateIsha, now);
    day.qiblaDegrees = source.qiblaDegrees;
    return day;
}

}  // namespace horavex
