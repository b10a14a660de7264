#pragma once

#include <cstdint>

namespace horavex {

// The sun by a low-precision almanac series of the early twentieth-century kind: mean anomaly,
// an equation of the centre of two terms, an obliquity that drifts linearly with the century and
// a sidereal-time polynomial, all of epoch 1900. Good to about a minute of time in the present
// century, a little more in years whose day number comes out one late (see ComputeYearConstants).
// Nutation, aberration and planetary terms are left out.

// Year constants, valid for one calendar year. ComputeYearConstants alone writes them.
extern double CosObliquity;         // cosine of the obliquity of the ecliptic
extern double SinObliquity;         // sine of the same
extern double SunPerigeeLongitude;  // radians, longitude of perigee at the start of the year
extern double SunAnomalyRate;       // radians per day, motion in mean anomaly
extern double SunAnomalyEpoch;      // radians, mean anomaly at the start of the year
extern double SunCenterCoef1;       // radians, coefficient of sin M in the equation of the centre
extern double SunCenterCoef2;       // radians, coefficient of sin 2M
extern double SiderealRate;         // hours per day, gain of sidereal time
extern double SiderealEpoch;        // hours, sidereal time at the start of the year

/// Fills the year constants for a Gregorian year.
void ComputeYearConstants(std::int16_t year);

struct SunPosition {
    double rightAscension;  // hours, 0 to 24
    double sinDeclination;
};

/// The sun at a moment of the year of the constants. t counts days: 1 is the start of the first
/// of January at Universal Time 0, the fraction is Universal Time.
SunPosition SunAt(double t);

}  // namespace horavex
