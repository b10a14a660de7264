#include "linux/system_clock.h"

#include <algorithm>
#include <cmath>

#include "linux/shared_looks.h"

namespace horavex {

namespace {

constexpr double kSecondsPerHour = 3600.0;
const Date kFirstDay = DateSerial(1970, 1, 1);  // where the moments of the system begin

std::time_t SecondsOf(const ClockOffset& offset) {
    return static_cast<std::time_t>(std::llround(offset.hours * kSecondsPerHour));
}

}  // namespace

Date LocalDate(std::time_t moment) {
    SharedLooks::FollowZone();  // localtime_r alone keeps the zone of its first call
    std::tm local = {};
    ::localtime_r(&moment, &local);
    // A zone with leap seconds has a second 60, which is no time of this day's clock.
    return DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
           TimeSerial(local.tm_hour, local.tm_min, std::min(local.tm_sec, 59));
}

ClockOffset LocalOffset(std::time_t moment) {
    SharedLooks::FollowZone();
    std::tm local = {};
    ::localtime_r(&moment, &local);
    return {static_cast<double>(local.tm_gmtoff) / kSecondsPerHour, local.tm_isdst > 0};
}

ClockOffset SystemClock::OffsetOn(Date day) const {
    return OffsetAt(day + 0.5);
}

// No zone is a day or more from Greenwich, so that the two looks lie on either side of a change.
ClockOffset SystemClock::OffsetAt(Date local) const {
    constexpr std::time_t kDay = 86400;
    const auto shown = static_cast<std::time_t>(std::llround((local - kFirstDay) * kSecondsPerDay));
    const ClockOffset before = LocalOffset(shown - kDay);
    const ClockOffset after = LocalOffset(shown + kDay);
    const bool isBefore = LocalOffset(shown - SecondsOf(before)) == before;
    return isBefore || LocalOffset(shown - SecondsOf(after)) != after ? before : after;
}

Date SystemClock::Now() const {
    std::timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return LocalDate(now.tv_sec);
}

Date SystemClock::UniversalNow() const {
    std::timespec now = {};
    ::clock_gettime(CLOCK_REALTIME, &now);
    return DateSerial(1970, 1, 1) + static_cast<double>(now.tv_sec) / kSecondsPerDay;
}

double SystemClock::SteadySeconds() const {
    std::timespec now = {};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
}

}  // namespace horavex
