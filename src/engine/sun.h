#pragma once

#include <cstdint>

namespace horavex {

// The sun by a low-precision almanac series of the early twentieth-century kind: mean anomaly,
// an equation of the centre of two terms, an obliquity that drifts linearly with the century and
// a sidereal-time polynomial, all of epoch 1900. Good to about a minute of time in the present
// century, a little more in years whose day number comes out one late (see ComputeYearConstants).
// Nutation, aberration and planetary terms are left out.

/// What the series needs of one calendar year.
struct YearConstants {
    double CosObliquity = 0.0;         // cosine of the obliquity of the ecliptic
    double SinObliquity = 0.0;         // sine of the same
    double SunPerigeeLongitude = 0.0;  // radians, longitude of perigee at the start of the year
    double SunAnomalyRate = 0.0;       // radians per day, motion in mean anomaly
    double SunAnomalyEpoch = 0.0;      // radians, mean anomaly at the start of the year
    double SunCenterCoef1 = 0.0;  // radians, coefficient of sin M in the equation of the centre
    double SunCenterCoef2 = 0.0;  // radians, coefficient of sin 2M
    double SiderealRate = 0.0;    // hours per day, gain of sidereal time
    double SiderealEpoch = 0.0;   // hours, sidereal time at the start of the year

    bool operator==(const YearConstants&) const = default;
};

/// The constants of a Gregorian year.
YearConstants YearConstantsOf(std::int16_t year);

/// Those of the program's table. ComputeYearConstants alone writes them.
extern YearConstants CurrentYearConstants;
void ComputeYearConstants(std::int16_t year);

struct SunPosition {
    double rightAscension;  // hours, 0 to 24
    double sinDeclination;
};

/// The sun at a moment of the year of the constants. t counts days: 1 is the start of the first
/// of January at Universal Time 0, the fraction is Universal Time.
SunPosition SunAt(const YearConstants& constants, double t);

}  // namespace horavex
