#include <algorithm>

#include "lib/answers.h"
#include "lib/unix_time.h"
#include "linux/erfa_almanac.h"
#include "sky/phases.h"
#include "sky/sky_day.h"

namespace horavex {

namespace {

constexpr std::int64_t kLongestSpan = 2 * 86400;  // seconds that a rise is searched in

void RequireAlmanac(const char* name, std::int64_t seconds) {
    const std::int64_t begin = UnixOfUniversal(DateSerial(kFirstAlmanacYear, 1, 1));
    const std::int64_t end = UnixOfUniversal(DateSerial(kLastAlmanacYear + 1, 1, 1));
    Require(seconds >= begin && seconds <= end,
            std::string(name) + " is not in the years 1900 to 2100");
}

Observer ObserverAt(double latitude, double longitude) {
    RequireRange("latitude", latitude, -90.0, 90.0);
    RequireRange("longitude", longitude, -180.0, 180.0);
    return {latitude, longitude};
}

horavex_phase ToldPhase(const PhaseInstant& phase) {
    return {UnixOfUniversal(phase.universal), static_cast<std::int32_t>(phase.phase), 0};
}

std::int64_t UnixOr0(const std::optional<Date>& universal) {
    return universal ? UnixOfUniversal(*universal) : 0;
}

}  // namespace

}  // namespace horavex

using namespace horavex;

horavex_status horavex_moon_phases(std::int64_t from, std::int64_t end, horavex_phase* phases,
                                   std::size_t room, std::size_t* count, horavex_error* error) {
    return Answer(error, [&] {
        RequireAlmanac("from", from);
        RequireAlmanac("end", end);
        Require(from <= end, "end is before from");
        Require(phases != nullptr || room == 0, "phases is NULL");
        Require(count != nullptr, "count is NULL");
        const auto found =
            PhasesBetween(ErfaAlmanac(), UniversalOfUnix(from), UniversalOfUnix(end));
        std::transform(found.begin(),
                       found.begin() + static_cast<std::ptrdiff_t>(std::min(room, found.size())),
                       phases, ToldPhase);
        *count = found.size();
    });
}

horavex_status horavex_moon_at(double latitude, double longitude, std::int64_t unix_time,
                               horavex_moon* moon, horavex_error* error) {
    return Answer(error, [&] {
        const Observer observer = ObserverAt(latitude, longitude);
        RequireAlmanac("unix_time", unix_time);
        RequireRoom("moon", moon);
        const ErfaAlmanac almanac;
        const Date universal = UniversalOfUnix(unix_time);
        const SkyMoment sky = SkyMomentAt(almanac, observer, universal);
        Give<horavex_moon>({0, sky.litPart, sky.ahead, AgeOfMoon(almanac, universal),
                            sky.moonDistance, sky.moon.altitude, sky.moon.bearing},
                           moon);
    });
}

horavex_status horavex_moon_rise_set(double latitude, double longitude, std::int64_t from,
                                     std::int64_t end, horavex_moon_day* day,
                                     horavex_error* error) {
    return Answer(error, [&] {
        const Observer observer = ObserverAt(latitude, longitude);
        RequireAlmanac("from", from);
        RequireAlmanac("end", end);
        Require(from <= end && end - from <= kLongestSpan, "end is not up to two days behind from");
        RequireRoom("day", day);
        const DayArc arc =
            MoonArc(ErfaAlmanac(), observer, {UniversalOfUnix(from), UniversalOfUnix(end)});
        Give<horavex_moon_day>(
            {0, UnixOr0(arc.rise), UnixOr0(arc.transit), UnixOr0(arc.set), arc.rise ? 1 : 0,
             arc.transit ? 1 : 0, arc.set ? 1 : 0, arc.upAtBegin ? 1 : 0},
            day);
    });
}
