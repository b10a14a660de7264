#pragma once

#include <array>

#include "sky/rise_set.h"

namespace horavex {

/// The twilights, from the brightest to the darkest.
inline constexpr std::array<double, 3> kTwilightDepths = {kCivilTwilight, kNauticalTwilight,
                                                          kAstronomicalTwilight};

/// What sun and moon do on a day over a place.
struct SkyDay {
    SkySpan span;
    DayArc sun;
    DayArc moon;
    std::array<Twilight, kTwilightDepths.size()> twilights;
};

SkyDay SkyDayOf(const Almanac& almanac, const Observer& observer, const SkySpan& span);

/// How sun and moon stand over a place at an instant.
struct SkyMoment {
    HorizonPlace sun;
    HorizonPlace moon;
    double moonDistance;  // kilometres between the centres of Earth and moon
    double litPart;       // of the moon's disc, 0 to 1
    double ahead;         // degrees of the moon before the sun along the ecliptic, 0 up to 360
};

SkyMoment SkyMomentAt(const Almanac& almanac, const Observer& observer, Date universal);

/// Days since the last new moon.
double AgeOfMoon(const Almanac& almanac, Date universal);

/// The moon's shape, each a phase or what lies between two.
enum class MoonShape {
    kNewMoon,
    kWaxingCrescent,
    kFirstQuarter,
    kWaxingGibbous,
    kFullMoon,
    kWaningGibbous,
    kLastQuarter,
    kWaningCrescent
};

/// That of an instant: the phase's on the whole day that has it.
MoonShape MoonShapeAt(const Almanac& almanac, const SkySpan& day, Date universal);

}  // namespace horavex
