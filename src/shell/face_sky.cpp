#include "shell/face_sky.h"

#include <cmath>
#include <cstdint>
#include <utility>

#include "base/program_state.h"
#include "engine/angle.h"
#include "engine/ruled_year.h"
#include "platform/platform.h"
#include "sky/day_sky.h"
#include "store/location_record.h"
#include "store/settings_record.h"

namespace horavex {

namespace {

/// What a sky or the arc of a day was worked out for.
struct Basis {
    std::int16_t latitude = 0;  // as in the record of the place
    std::int16_t longitude = 0;
    double minutes = 0.0;  // of the local clock
    double offset = 0.0;   // minutes that it is ahead of Greenwich

    bool operator==(const Basis&) const = default;
};

/// The last sky, for the face is told at each tick, and the arc of its day.
struct LastSky {
    Basis minute;
    Basis day;
    std::shared_ptr<const DaySky> sky;
};
LastSky last;

const ProgramStateReset reset([] { last = {}; });

SkyWatch WatchOfPlace() {
    const CityRecord& city = ActiveLocation.City;
    return {Ports().almanac,
            {StoredCoord(city.Latitude), StoredCoord(city.Longitude)},
            {RuledYear.rules.zoneName, ActiveSettings}};
}

Basis BasisAt(const SkyWatch& watch, Date local) {
    constexpr double kMinutesPerDay = 24.0 * 60.0;
    constexpr double kSlack = 1e-5;  // minutes: dates are not exact
    const CityRecord& city = ActiveLocation.City;
    const double ahead = local - watch.clock.UniversalOf(local);
    return {city.Latitude, city.Longitude, std::floor(local * kMinutesPerDay + kSlack),
            std::round(ahead * kMinutesPerDay)};
}

}  // namespace

std::shared_ptr<const DaySky> SkyOfFace(Date now) {
    const SkyWatch watch = WatchOfPlace();
    const Basis minute = BasisAt(watch, now);
    if (last.sky != nullptr && last.minute == minute) {
        return last.sky;
    }
    const Basis day = BasisAt(watch, std::floor(now));
    auto arc = last.sky != nullptr && last.day == day ? last.sky->sunArc
                                                      : SunArcOfDay(watch, std::floor(now));
    last = {minute, day, std::make_shared<DaySky>(DaySkyAt(watch, now, std::move(arc)))};
    return last.sky;
}

}  // namespace horavex
