#pragma once

#include <vector>

#include "platform/almanac.h"

namespace horavex {

/// The moon's phases in their order; each is a quarter of a turn of the moon from the sun.
enum class Phase { kNewMoon, kFirstQuarter, kFullMoon, kLastQuarter };

/// The instant of a phase, by the clock of Greenwich.
struct PhaseInstant {
    Phase phase;
    Date universal;
};

/// All phases from one instant up to, not including, another, in their order.
std::vector<PhaseInstant> PhasesBetween(const Almanac& almanac, Date from, Date end);

/// Degrees along the ecliptic by which the moon is ahead of the sun, 0 up to 360.
double MoonAhead(const Almanac& almanac, Date universal);

/// Degrees between the centres of sun and moon as the centre of the Earth sees them, 0 to 180.
double Elongation(const CelestialPlace& sun, const CelestialPlace& moon);

/// The lit part of the moon's disc, 0 to 1.
double LitPart(const CelestialPlace& sun, const CelestialPlace& moon);

}  // namespace horavex
