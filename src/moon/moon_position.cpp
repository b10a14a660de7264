#include "moon/moon_position.h"

#include <cmath>

#include "base/int16.h"
#include "base/rounding.h"

namespace horavex {

namespace {

constexpr double kObliquity = 0.4090701230601779;          // radians
constexpr double kOrbitInclination = 0.08980410284560666;  // radians
constexpr double kDaysPerYear = 365.242191;                // tropical
constexpr double kDynamicalMinutes = 0.83333333;           // allowance for dynamical time

/// Cut downward at each step; the seconds have two places.
ThreeParts FlooredParts(double value) {
    const double whole = std::floor(value);
    const double minutes = std::floor((value - whole) * 60.0);
    return {RoundToInt16(whole), RoundToInt16(minutes),
            RoundToPlaces(((value - whole) * 60.0 - minutes) * 60.0, 2)};
}

ThreeParts WithWholeSeconds(ThreeParts parts) {
    parts.seconds = RoundHalfEven(parts.seconds);
    return parts;
}

/// Days of the theory's time for an hour of a day.
double TheoryDays(double hour, const CivilDate& date) {
    const double whole = RoundToSix(DaysSince1990(date.day, date.month, date.year));
    const double fraction = RoundToSix((kDynamicalMinutes / 60.0 + hour) / 24.0);
    return RoundToSix(whole + fraction);
}

/// The sun's mean anomaly and true longitude, degrees.
struct SunOfTheory {
    double anomaly;
    double longitude;
};

SunOfTheory SunAtDays(double D) {
    const double N = RoundToSix(WrapRange((360.0 / kDaysPerYear) * D, 0.0, 360.0));
    const double anomaly = RoundToSix(N + 279.403303 - 282.768422);
    const double longitude = (360.0 / kShortPi) * 0.016713 * SinDegrees(anomaly) +
                             (360.0 / kDaysPerYear) * D + 279.403303;
    return {anomaly, RoundToSix(WrapRange(longitude, 0.0, 360.0))};
}

/// The moon in its own orbit, degrees.
struct OrbitPlace {
    double longitude;
    double anomaly;
    double equationOfCentre;
};

OrbitPlace OrbitAtDays(double D, const SunOfTheory& sun) {
    const double l = RoundToSix(WrapRange(13.1763966 * D + 318.351648, 0.0, 360.0));
    const double Mm = RoundToSix(WrapRange(l - 0.111404 * D - 36.34041, 0.0, 360.0));
    const double evection = RoundToSix(1.2739 * SinDegrees(2.0 * (l - sun.longitude) - Mm));
    const double annual = RoundToSix(0.1858 * SinDegrees(sun.anomaly));
    const double third = RoundToSix(0.37 * SinDegrees(sun.anomaly));
    const double anomaly = RoundToSix(Mm + evection - annual - third);
    const double centre = RoundToSix(6.2886 * SinDegrees(anomaly));
    const double fourth = RoundToSix(0.214 * SinDegrees(2.0 * anomaly));
    const double corrected = RoundToSix(l + evection + centre - annual + fourth);
    const double variation = RoundToSix(0.6583 * SinDegrees(2.0 * (corrected - sun.longitude)));
    return {RoundToSix(corrected + variation), anomaly, centre};
}

double NodeAtDays(double D, const SunOfTheory& sun) {
    const double node = RoundToSix(WrapRange(318.510107 - 0.0529539 * D, 0.0, 360.0));
    return RoundToSix(node - 0.16 * SinDegrees(sun.anomaly));
}

double EclipticLongitude(double fromNode, double node) {
    const double y = RoundToSix(SinDegrees(fromNode) * std::cos(kOrbitInclination));
    const double x = RoundToSix(CosDegrees(fromNode));
    return RoundToSix(AngleInQuadrant(y, x) + node);
}

double EclipticLatitude(double fromNode) {
    return RoundToSix(ArcSinDegrees(std::sin(kOrbitInclination) * SinDegrees(fromNode)));
}

}  // namespace

EquatorialParts EclipticToEquatorial(const ThreeParts& longitude, const ThreeParts& latitude) {
    const double L = RoundToSix(ClockToDecimal(longitude));
    const double B = RoundToSix(ClockToDecimal(latitude));
    const double t = RoundToSix(SinDegrees(B) * std::cos(kObliquity) +
                                std::sin(kObliquity) * CosDegrees(B) * SinDegrees(L));
    const double declination = RoundToSix(ArcSinDegrees(t));
    const double y =
        RoundToSix(SinDegrees(L) * std::cos(kObliquity) - TanDegrees(B) * std::sin(kObliquity));
    const double x = RoundToSix(CosDegrees(L));
    const double a = WrapRange(AngleInQuadrant(y, x), 0.0, 360.0);
    return {FlooredParts(RoundToSix(a / 15.0)), FlooredParts(declination)};
}

MoonPlace MoonPosition(double hour, const CivilDate& date) {
    const double D = TheoryDays(hour, date);
    const SunOfTheory sun = SunAtDays(D);
    const OrbitPlace orbit = OrbitAtDays(D, sun);
    const double node = NodeAtDays(D, sun);
    const double longitude = EclipticLongitude(orbit.longitude - node, node);
    const double latitude = EclipticLatitude(orbit.longitude - node);
    const EquatorialParts equatorial = EclipticToEquatorial(
        WithWholeSeconds(DecimalToClock(longitude)), WithWholeSeconds(DecimalToClock(latitude)));
    return {longitude,
            node,
            orbit.longitude,
            orbit.anomaly,
            latitude,
            ClockToDecimal(equatorial.rightAscension),
            ClockToDecimal(equatorial.declination),
            orbit.equationOfCentre,
            sun.longitude};
}

MoonSize MoonSizeAndParallax(const CivilDate& date) {
    const MoonPlace moon = MoonPosition(0.0, date);
    const double rho =
        0.99698599 / (1.0 + 0.0549 * CosDegrees(moon.equationOfCentre + moon.anomaly));
    return {DecimalToClock(0.5181 / rho), DecimalToClock(0.9507 / rho)};
}

}  // namespace horavex
