#pragma once

#include <cmath>

#include "platform/almanac.h"

namespace horavex {

/// An almanac in memory, of a sun and a moon that go along the equator, each at an even pace, while
/// the ecliptic lies in the equator too: what it answers can be worked out by hand.
class EvenAlmanac : public Almanac {
public:
    Date start = 0.0;                        // both bodies and sidereal time count from here
    double sunStart = 0.0, sunPace = 0.0;    // degrees, degrees a day
    double moonStart = 0.0, moonPace = 0.0;  // the same
    double sunDistance = 149597870.7, moonDistance = 384400.0;  // kilometres

    CelestialPlace SunAt(Date universal) const override {
        return OnEquator(sunStart + sunPace * (universal - start), sunDistance);
    }
    CelestialPlace MoonAt(Date universal) const override {
        return OnEquator(moonStart + moonPace * (universal - start), moonDistance);
    }
    double SiderealTime(Date universal) const override {
        return Turned(360.0 * (universal - start));
    }

private:
    static double Turned(double degrees) { return degrees - 360.0 * std::floor(degrees / 360.0); }

    static CelestialPlace OnEquator(double degrees, double distance) {
        return {Turned(degrees), 0.0, Turned(degrees), 0.0, distance};
    }
};

}  // namespace horavex
