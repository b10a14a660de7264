#include "linux/erfa_almanac.h"

#include <erfa.h>
#include <erfam.h>

#include "base/julian_day.h"
#include "linux/delta_t.h"

namespace horavex {

namespace {

constexpr double kDegrees = 180.0 / ERFA_DPI;              // in a radian
constexpr double kUnit = ERFA_DAU / 1000.0;                // kilometres
constexpr double kLightTime = ERFA_AULT / kSecondsPerDay;  // days a unit of distance

using Vector = double[3];

/// A body's geometric place from the Earth's centre at an instant of the orbits' time: the unit of
/// distance and the mean equator of 2000.
using Geometry = void (*)(double orbitTime, Vector& place);

void SunGeometry(double orbitTime, Vector& place) {
    double earthFromSun[2][3];
    double earthFromCentre[2][3];
    eraEpv00(kJulianEpoch, orbitTime, earthFromSun, earthFromCentre);
    eraSxp(-1.0, earthFromSun[0], place);
}

void MoonGeometry(double orbitTime, Vector& place) {
    double moonFromEarth[2][3];
    eraMoon98(kJulianEpoch, orbitTime, moonFromEarth);
    eraCp(moonFromEarth[0], place);
}

/// Where the body was, against the Earth of then, when its light left it: that is light time and
/// aberration at once.
void Apparent(Geometry geometry, double orbitTime, Vector& place) {
    geometry(orbitTime, place);
    geometry(orbitTime - kLightTime * eraPm(place), place);
}

struct Direction {
    double along;  // degrees, 0 up to 360
    double above;  // degrees
};

Direction DirectionOf(Vector& place) {
    double along = 0.0;
    double above = 0.0;
    eraC2s(place, &along, &above);
    return {eraAnp(along) * kDegrees, above * kDegrees};
}

/// The true equator of date, and the angle between it and the ecliptic, radians.
struct Equator {
    double rotation[3][3];
    double obliquity;
};

Equator EquatorOf(double orbitTime) {
    double longitudeShift, obliquityShift, meanObliquity;
    double bias[3][3], precession[3][3], mean[3][3], nutation[3][3];
    Equator equator{};
    eraPn00b(kJulianEpoch, orbitTime, &longitudeShift, &obliquityShift, &meanObliquity, bias,
             precession, mean, nutation, equator.rotation);
    equator.obliquity = meanObliquity + obliquityShift;
    return equator;
}

CelestialPlace PlaceOf(Geometry geometry, Date universal) {
    const double orbitTime = universal + DeltaT(universal) / kSecondsPerDay;
    Equator equator = EquatorOf(orbitTime);
    Vector place;
    Apparent(geometry, orbitTime, place);
    const double distance = eraPm(place) * kUnit;
    eraRxp(equator.rotation, place, place);
    const Direction onEquator = DirectionOf(place);
    double tilt[3][3];
    eraIr(tilt);
    eraRx(equator.obliquity, tilt);
    eraRxp(tilt, place, place);
    const Direction onEcliptic = DirectionOf(place);
    return {onEcliptic.along, onEcliptic.above, onEquator.along, onEquator.above, distance};
}

}  // namespace

CelestialPlace ErfaAlmanac::SunAt(Date universal) const {
    return PlaceOf(SunGeometry, universal);
}

CelestialPlace ErfaAlmanac::MoonAt(Date universal) const {
    return PlaceOf(MoonGeometry, universal);
}

double ErfaAlmanac::SiderealTime(Date universal) const {
    return eraGst00b(kJulianEpoch, universal) * kDegrees;
}

}  // namespace horavex
