#pragma once

#include <cstdint>

namespace horavex {

// Mean elements of a lunation after J. Meeus, Astronomical Algorithms, first edition (chapters on
// the phases of the Moon and on eclipses); the constants are those of that edition. Angles are in
// radians. The lunation number k is whole for a new moon, with 0.25, 0.5 and 0.75 on top for the
// phases that follow; k = 0 is the new moon of 6 January 2000. T counts Julian centuries, and here
// it comes from the estimate that k was cut from and never from k, so that every term differs a
// little from the book's.

/// The pi of the series, to 15 figures: 3e-15 short of pi, which moves a phase or an eclipse by the
/// last bit of its Julian day at most.
inline constexpr double kSeriesPi = 3.14159265358979;

/// year + index / 12.
double YearFraction(std::int16_t year, std::int16_t index);

/// The lunation of a moment, with its fraction.
double LunationEstimate(double yearFraction);

/// T of an estimate.
double CenturiesOfEstimate(double estimate);

/// Julian day of the mean phase, dynamical time.
double MeanPhaseDay(double k, double T);

/// What a term takes once for each power of the eccentricity of the Earth's orbit in it.
double EccentricityFactor(double T);

double SunMeanAnomaly(double k, double T);
double MoonMeanAnomaly(double k, double T);
double MoonLatitudeArgument(double k, double T);
double NodeLongitude(double k, double T);

inline constexpr int kPlanetaryArguments = 14;

/// n: 1 to 14. All fourteen have the term in T squared, which the book gives to the first alone.
double PlanetaryArgument(int n, double k, double T);

/// An angle brought onto one turn, degrees, with manners of its own that later comparisons build
/// on: a negative angle of less than a turn stays negative; a negative multiple of 360 gives 360; 0
/// and 360 give the answer of the call before (0 for the first of a run); a greater multiple of 360
/// gives itself less 360000; and beyond 1000 turns a positive angle loses 360000 while a negative
/// one stays.
double ReduceAngle(double degrees);

/// The elements of one lunation together.
struct Lunation {
    double k;
    double T;             // Julian centuries
    double day;           // MeanPhaseDay
    double eccentricity;  // EccentricityFactor
    double sunAnomaly;    // radians, as all angles below
    double moonAnomaly;   //
    double latitude;      // MoonLatitudeArgument
    double node;          // NodeLongitude
};

/// The lunation that holds a twelfth of a year. index: 0 to 12. offset: 0 new moon, 0.25 first
/// quarter, 0.5 full moon, 0.75 last quarter.
Lunation LunationOf(std::int16_t year, std::int16_t index, double offset);

}  // namespace horavex
