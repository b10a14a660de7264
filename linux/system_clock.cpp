#include "linux/system_clock.h"

#include <algorithm>

namespace horavex {

namespace {

constexpr double kSecondsPerHour = 3600.0;
const Date kFirstDay = DateSerial(1970, 1, 1);  // where the moments of the system begin

}  // namespace

Date LocalDate(std::time_t moment) {
    ::tzset();  // localtime_r alone keeps the zone of its first call
    std::tm local = {};
    ::localtime_r(&moment, &local);
    // A zone with leap seconds has a second 60, which is no time of this day's clock.
    return DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday) +
           TimeSerial(local.tm_hour, local.tm_min, std::min(local.tm_sec, 59));
}

ClockOffset LocalOffset(std::time_t moment) {
    ::tzset();
    std::tm local = {};
    ::localtime_r(&moment, &local);
    return {static_cast<double>(local.tm_gmtoff) / kSecondsPerHour, local.tm_isdst > 0};
}

// Noon of Greenwich lies within half a day of the local noon, where the offset is nearly always
// the same; a second look goes to the local noon itself.
ClockOffset SystemClock::OffsetOn(Date day) const {
    const auto noon = static_cast<std::time_t>((day - kFirstDay + 0.5) * kSecondsPerDay);
    const double nearly = LocalOffset(noon).hours;
    return LocalOffset(noon - static_cast<std::time_t>(nearly * kSecondsPerHour));
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
