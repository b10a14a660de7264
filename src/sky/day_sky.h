#pragma once

#include <vector>

#include "engine/zone_clock.h"
#include "sky/horizon.h"

namespace horavex {

/// The sky over a place at one moment of a day, for those who paint it. Angles are degrees without
/// refraction; nothing of it is told to the second.
struct DaySky {
    Date local = 0.0;  // of the place's clock
    double sunAltitude = 0.0;
    double moonAltitude = 0.0;
    double sunPastMeridian = 0.0;   // west positive, from -180 up to 180
    double moonPastMeridian = 0.0;  // the same
    double litPart = 0.0;           // of the moon's disc, 0 to 1
    double brightLimb = 0.0;        // where its lit edge points: clockwise from the zenith
    std::vector<double> sunArc;     // the sun's altitudes, from midnight to midnight in even steps
};

/// A place, its clock and the almanac.
struct SkyWatch {
    const Almanac& almanac;
    Observer observer;
    ZoneClock clock;
};

/// The sun's altitudes over the day that begins at a midnight of the place's clock.
std::vector<double> SunArcOfDay(const SkyWatch& watch, Date midnight);

/// The sky of a moment; the arc is handed on.
DaySky DaySkyAt(const SkyWatch& watch, Date local, std::vector<double> sunArc);

/// The sun's altitude when so much of the day of an arc is over, 0 to 1; 0 of an empty arc.
double AltitudeOnArc(const std::vector<double>& sunArc, double dayPart);

}  // namespace horavex
