#include "sky/horizon.h"

#include <cmath>

#include "engine/angle.h"

namespace horavex {

namespace {

// The Earth as the World Geodetic System 1984 has it.
constexpr double kEarthRadius = 6378.137;  // kilometres, at the equator
constexpr double kFlattening = 1.0 / 298.257223563;

// Kilometres. The sun of 959.63 seconds of arc at the mean distance, the moon of 0.2725076 Earth
// radii: those of the almanacs.
constexpr double kSunRadius = 695990.0;
constexpr double kMoonRadius = 0.2725076 * kEarthRadius;

/// Kilometres in the plane of an observer's meridian: out of the equator's plane toward the
/// meridian, east, and along the axis to the north.
struct MeridianVector {
    double out;
    double east;
    double north;
};

MeridianVector FromEarthCentre(const CelestialPlace& body, double hourAngle) {
    const double declination = DegToRad(body.declination);
    const double hour = DegToRad(hourAngle);
    const double flat = body.distance * std::cos(declination);
    return {flat * std::cos(hour), -flat * std::sin(hour), body.distance * std::sin(declination)};
}

MeridianVector PlaceOf(double latitude) {
    const double polar = (1.0 - kFlattening) * (1.0 - kFlattening);
    const double c = std::cos(latitude);
    const double s = std::sin(latitude);
    const double curve = kEarthRadius / std::sqrt(c * c + polar * s * s);
    return {curve * c, 0.0, curve * polar * s};
}

HorizonPlace Over(const Almanac& almanac, const Observer& observer, const CelestialPlace& body,
                  double radius, Date universal) {
    const double latitude = DegToRad(observer.latitude);
    const MeridianVector centre =
        FromEarthCentre(body, HourAngle(almanac, observer, body, universal));
    const MeridianVector here = PlaceOf(latitude);
    const double out = centre.out - here.out;
    const double axis = centre.north - here.north;
    const double up = out * std::cos(latitude) + axis * std::sin(latitude);
    const double north = axis * std::cos(latitude) - out * std::sin(latitude);
    const double level = std::hypot(north, centre.east);
    return {RadToDeg(std::atan2(up, level)), Normalize360(RadToDeg(std::atan2(centre.east, north))),
            RadToDeg(std::asin(radius / std::hypot(up, level)))};
}

}  // namespace

HorizonPlace SunOver(const Almanac& almanac, const Observer& observer, Date universal) {
    return Over(almanac, observer, almanac.SunAt(universal), kSunRadius, universal);
}

HorizonPlace MoonOver(const Almanac& almanac, const Observer& observer, Date universal) {
    return Over(almanac, observer, almanac.MoonAt(universal), kMoonRadius, universal);
}

double HourAngle(const Almanac& almanac, const Observer& observer, const CelestialPlace& body,
                 Date universal) {
    return SignedDegrees(almanac.SiderealTime(universal) + observer.longitude -
                         body.rightAscension);
}

double SignedDegrees(double degrees) {
    return Normalize360(degrees + 180.0) - 180.0;
}

}  // namespace horavex
