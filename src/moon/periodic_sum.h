#pragma once

#include <span>

namespace horavex {

/// The angles whose multiples make the argument of a term, radians.
struct SeriesAngles {
    double moonAnomaly;
    double sunAnomaly;
    double latitude;
    double node;
    double planetary = 0.0;
};

/// One term of a periodic sum: a sine of multiples of the angles, times the coefficient of the
/// wanted column, times a power of the eccentricity factor.
struct PeriodicTerm {
    int moonAnomaly;
    int sunAnomaly;
    int latitude;
    int node;
    int planetary;
    int powerOfE;            // 0 to 2
    double coefficients[2];  // days
};

/// The sum of all terms in the order of the table, days. column: 0 or 1.
double PeriodicSum(std::span<const PeriodicTerm> terms, int column, const SeriesAngles& angles,
                   double E);

}  // namespace horavex
