#include "engine/day_view.h"

#include <cmath>

namespace horavex {

namespace {

int SecondOfMoment(const Moment& moment) {
    return SecondOfDay(moment.hours / 24.0);
}

int SecondsUntil(const Moment& moment, Date now) {
    constexpr int kDay = static_cast<int>(kSecondsPerDay);
    return (SecondOfMoment(moment) - SecondOfDay(now) + kDay) % kDay;
}

NextMoment NextOf(const DaySource& source, Date now) {
    const std::int16_t found = FindNextPrayer(source.today, now);
    const bool isTomorrows = found == kNoPrayerLeft;
    const std::int16_t prayer = isTomorrows ? static_cast<std::int16_t>(kFajr) : found;
    const Moment& moment =
        isTomorrows ? source.tomorrowsFajr : source.today[static_cast<std::size_t>(prayer)];
    return {prayer, isTomorrows, moment, static_cast<double>(SecondsUntil(moment, now))};
}

}  // namespace

std::int16_t FindNextPrayer(const DayMoments& today, Date now) {
    for (std::int16_t prayer = 0; prayer < kNoPrayerLeft; ++prayer) {
        const Moment& moment = today[static_cast<std::size_t>(prayer)];
        if (prayer != kShurooq && SecondOfMoment(moment) > SecondOfDay(now)) {
            return prayer;
        }
    }
    return kNoPrayerLeft;
}

DayView MakeDayView(const DaySource& source, Date now) {
    return {now,          std::floor(now),     HijriFromDate(now), source.place,
            source.today, NextOf(source, now), source.qiblaDegrees};
}

}  // namespace horavex
