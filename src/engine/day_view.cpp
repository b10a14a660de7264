#include "engine/day_view.h"

#include <cmath>

#include "base/rounding.h"

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

/// Now: second of the day, and offset of the clock.
struct ClockNow {
    int second;
    double offset;
};

/// A clock that is put forward or back meanwhile does not count.
double RestOf(const Moment& moment, const ClockNow& now) {
    const int turned = NearestInt((moment.offset - now.offset) * 3600.0);
    return static_cast<double>((SecondOfMoment(moment) - turned - now.second + kDay) % kDay);
}

/// Tomorrow's Fajr, unless it comes before midnight and is over, too.
NextMoment TomorrowsFirst(const DayMoments& tomorrow, const ClockNow& now) {
    const bool fajrIsOver = SecondOfMoment(tomorrow[kFajr]) + kDay <= now.second;
    const Prayer prayer = fajrIsOver ? kZuhr : kFajr;
    NextMoment next = {static_cast<std::int16_t>(prayer), true, tomorrow[prayer],
                       RestOf(tomorrow[prayer], now)};
    next.moment.dayShift = 0;  // before midnight it is still today's clock
    return next;
}

NextMoment NextOf(const DaySource& source, const std::vector<PrayerMoment>& late, Date now) {
    const int second = SecondOfDay(now);
    const ClockNow clock = {second, source.offset};
    for (const auto& [prayer, moment] : late) {
        if (SecondOfMoment(moment) > second) {
            return {static_cast<std::int16_t>(prayer), false, moment, RestOf(moment, clock), true};
        }
    }
    const std::int16_t found = FirstAhead(source.today, second);
    if (found == kNoPrayerLeft) {
        return TomorrowsFirst(source.tomorrow, clock);
    }
    const Moment& moment = source.today[static_cast<std::size_t>(found)];
    return {found, false, moment, RestOf(moment, clock)};
}

/// The moments of a neighbouring day that fall on this one, in its hours; sunrise is none.
std::vector<PrayerMoment> OnThisDay(const DayMoments& neighbour, double hours) {
    std::vector<PrayerMoment> found;
    for (std::size_t prayer = 0; prayer < kPrayerCount; ++prayer) {
        Moment moment = neighbour[prayer];
        moment.hours += hours;
        moment.dayShift = 0;
        if (prayer != kShurooq && moment.hours >= 0.0 && moment.hours < 24.0) {
            found.push_back({static_cast<Prayer>(prayer), moment});
        }
    }
    return found;
}

}  // namespace

DayView MakeDayView(const DaySource& source, Date now) {
    DayView day;
    day.now = now;
    day.date = std::floor(now);
    day.hijri = source.hijri;
    day.place = source.place;
    day.moments = source.today;
    day.late = OnThisDay(source.yesterday, -24.0);
    day.early = OnThisDay(source.tomorrow, 24.0);
    day.next = NextOf(source, day.late, now);
    day.qiblaDegrees = source.qiblaDegrees;
    return day;
}

OwnMoment OwnNext(const DayView& day) {
    if (day.next.isYesterdays) {
        OwnMoment own = {day.date - 1.0, day.next.moment};
        own.moment.hours += 24.0;
        return own;
    }
    return {day.date + (day.next.isTomorrows ? 1.0 : 0.0), day.next.moment};
}

}  // namespace horavex
