#include "sky/day_sky.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "engine/angle.h"
#include "sky/phases.h"

namespace horavex {

namespace {

constexpr int kStepsADay = 48;  // half hours: a straight line between two is right to half a degree

/// Where a great circle from one point of the sky to another sets out, clockwise from the zenith.
double WayFromZenith(const HorizonPlace& from, const HorizonPlace& to) {
    const double turn = DegToRad(to.bearing - from.bearing);
    const double here = DegToRad(from.altitude);
    const double there = DegToRad(to.altitude);
    return RadToDeg(std::atan2(
        std::sin(turn) * std::cos(there),
        std::sin(there) * std::cos(here) - std::cos(there) * std::sin(here) * std::cos(turn)));
}

}  // namespace

std::vector<double> SunArcOfDay(const SkyWatch& watch, Date midnight) {
    std::vector<double> altitudes;
    for (int step = 0; step <= kStepsADay; ++step) {
        const Date local = midnight + static_cast<double>(step) / kStepsADay;
        altitudes.push_back(
            SunOver(watch.almanac, watch.observer, watch.clock.UniversalOf(local)).altitude);
    }
    return altitudes;
}

DaySky DaySkyAt(const SkyWatch& watch, Date local, std::vector<double> sunArc) {
    const Date universal = watch.clock.UniversalOf(local);
    const CelestialPlace sun = watch.almanac.SunAt(universal);
    const CelestialPlace moon = watch.almanac.MoonAt(universal);
    const HorizonPlace sunHere = SunOver(watch.almanac, watch.observer, universal);
    const HorizonPlace moonHere = MoonOver(watch.almanac, watch.observer, universal);
    return {local,
            sunHere.altitude,
            moonHere.altitude,
            HourAngle(watch.almanac, watch.observer, sun, universal),
            HourAngle(watch.almanac, watch.observer, moon, universal),
            LitPart(sun, moon),
            WayFromZenith(moonHere, sunHere),
            std::move(sunArc)};
}

double AltitudeOnArc(const std::vector<double>& sunArc, double dayPart) {
    if (sunArc.empty()) {
        return 0.0;
    }
    const double steps = static_cast<double>(sunArc.size() - 1);
    const double at = std::clamp(dayPart, 0.0, 1.0) * steps;
    const auto before = static_cast<std::size_t>(at);
    const std::size_t after = std::min(before + 1, sunArc.size() - 1);
    return std::lerp(sunArc[before], sunArc[after], at - std::floor(at));
}

}  // namespace horavex
