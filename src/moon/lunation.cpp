#include "moon/lunation.h"

#include <cmath>

#include "base/program_state.h"
#include "moon/phase_terms.h"

namespace horavex {

namespace {

constexpr double kMostTurns = 1000.0;
constexpr double kTurn = 360.0;

double lastAngle = 0.0;  // what ReduceAngle answered last

const ProgramStateReset reset([] { lastAngle = 0.0; });

double ReducedRadians(double degrees) {
    return ReduceAngle(degrees) * kSeriesPi / 180.0;
}

// Both stages ask for the least number of turns that brings an angle onto its turn. A quotient that
// is rounded up to a whole number tells one turn too many, never too few.

/// Stage of a negative angle of a turn or more. True when the answer stands.
bool TurnUp(double degrees) {
    const double whole = std::floor(-degrees / kTurn);
    for (const double turns : {whole, whole + 1.0}) {
        lastAngle = turns * kTurn + degrees;
        if (turns <= kMostTurns && lastAngle > 0.0 && lastAngle <= kTurn) {
            return true;
        }
    }
    return false;
}

void TurnDown(double degrees) {
    const double whole = std::floor(degrees / kTurn);
    for (const double turns : {whole - 1.0, whole}) {
        lastAngle = degrees - turns * kTurn;
        if (turns <= kMostTurns && lastAngle > 0.0 && lastAngle < kTurn) {
            return;
        }
    }
    lastAngle = degrees - kMostTurns * kTurn;
}

}  // namespace

double YearFraction(std::int16_t year, std::int16_t index) {
    return year + index / 12.0;
}

double LunationEstimate(double yearFraction) {
    return (yearFraction - 2000.0) * 12.3685;
}

double CenturiesOfEstimate(double estimate) {
    return estimate / 1236.85;
}

double MeanPhaseDay(double k, double T) {
    return 2451550.09765 + 29.530588853 * k + 0.0001337 * T * T - 0.00000015 * T * T * T +
           0.00000000073 * T * T * T * T;
}

double EccentricityFactor(double T) {
    return 1.0 - 0.002516 * T - 0.0000074 * T * T;
}

double SunMeanAnomaly(double k, double T) {
    return ReducedRadians(2.5534 + 29.10535669 * k - 0.0000218 * T * T - 0.00000011 * T * T * T);
}

double MoonMeanAnomaly(double k, double T) {
    return ReducedRadians(201.5643 + 385.81693528 * k + 0.0107438 * T * T + 0.00001239 * T * T * T -
                          0.000000058 * T * T * T * T);
}

double MoonLatitudeArgument(double k, double T) {
    return ReducedRadians(160.7108 + 390.67050274 * k - 0.0016341 * T * T - 0.00000227 * T * T * T +
                          0.000000011 * T * T * T * T);
}

double NodeLongitude(double k, double T) {
    return ReducedRadians(124.7746 - 1.5637558 * k + 0.0020691 * T * T + 0.00000215 * T * T * T);
}

double PlanetaryArgument(int n, double k, double T) {
    const Planetary& planetary = kPlanetary[n - 1];
    return ReducedRadians(planetary.base + planetary.rate * k - 0.009173 * T * T);
}

double ReduceAngle(double degrees) {
    if (degrees < 0.0 && std::fabs(degrees) >= kTurn && TurnUp(degrees)) {
        return lastAngle;
    }
    if (degrees > kTurn) {
        TurnDown(degrees);
    }
    if (degrees < kTurn && degrees != 0.0) {
        lastAngle = degrees;
    }
    return lastAngle;
}

Lunation LunationOf(std::int16_t year, std::int16_t index, double offset) {
    const double estimate = LunationEstimate(YearFraction(year, index));
    const double k = std::floor(estimate) + offset;
    const double T = CenturiesOfEstimate(estimate);
    return {k,
            T,
            MeanPhaseDay(k, T),
            EccentricityFactor(T),
            SunMeanAnomaly(k, T),
            MoonMeanAnomaly(k, T),
            MoonLatitudeArgument(k, T),
            NodeLongitude(k, T)};
}

}  // namespace horavex
