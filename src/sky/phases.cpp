#include "sky/phases.h"

#include <cmath>

#include "engine/angle.h"
#include "sky/crossing.h"
#include "sky/separation.h"

namespace horavex {

namespace {

constexpr double kStep = 1.0;  // days, in which the moon gains 15 degrees at most

constexpr int kPhases = 4;
constexpr double kQuarter = 90.0;  // degrees

/// The phase at which the moon is so many degrees ahead, or nearly.
Phase PhaseAt(double ahead) {
    return static_cast<Phase>(std::lround(ahead / kQuarter) % kPhases);
}

}  // namespace

std::vector<PhaseInstant> PhasesBetween(const Almanac& almanac, Date from, Date end) {
    // Passes through zero at every quarter, to either side by turns.
    const SkyQuantity quarters = [&](Date universal) {
        return std::sin(2.0 * DegToRad(MoonAhead(almanac, universal)));
    };
    std::vector<PhaseInstant> phases;
    for (const Crossing& crossing : CrossingsOf(quarters, from, end, kStep)) {
        phases.push_back({PhaseAt(MoonAhead(almanac, crossing.instant)), crossing.instant});
    }
    return phases;
}

double MoonAhead(const Almanac& almanac, Date universal) {
    return Normalize360(almanac.MoonAt(universal).longitude - almanac.SunAt(universal).longitude);
}

double Elongation(const CelestialPlace& sun, const CelestialPlace& moon) {
    return Separation({sun.rightAscension, sun.declination},
                      {moon.rightAscension, moon.declination});
}

double LitPart(const CelestialPlace& sun, const CelestialPlace& moon) {
    const double elongation = DegToRad(Elongation(sun, moon));
    const double phaseAngle = std::atan2(sun.distance * std::sin(elongation),
                                         moon.distance - sun.distance * std::cos(elongation));
    return (1.0 + std::cos(phaseAngle)) / 2.0;
}

}  // namespace horavex
