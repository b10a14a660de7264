#include "moon/periodic_sum.h"

#include <cmath>

namespace horavex {

namespace {

double ArgumentOf(const PeriodicTerm& term, const SeriesAngles& angles) {
    return term.moonAnomaly * angles.moonAnomaly + term.sunAnomaly * angles.sunAnomaly +
           term.latitude * angles.latitude + term.node * angles.node +
           term.planetary * angles.planetary;
}

double PowerOfE(int power, double E) {
    double factor = 1.0;
    for (int i = 0; i < power; ++i) {
        factor *= E;
    }
    return factor;
}

}  // namespace

double PeriodicSum(std::span<const PeriodicTerm> terms, int column, const SeriesAngles& angles,
                   double E) {
    double sum = 0.0;
    for (const PeriodicTerm& term : terms) {
        sum += term.coefficients[column] * PowerOfE(term.powerOfE, E) *
               std::sin(ArgumentOf(term, angles));
    }
    return sum;
}

}  // namespace horavex
