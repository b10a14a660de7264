#include "sky/horizon.h"

#include <cmath>

#include "engine/angle.h"
#include "sky/bodies.h"

namespace horavex {

namespace {

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

constexpr MeridianVector kCentre{0.0, 0.0, 0.0};

HorizonPlace Seen(const MeridianVector& body, const MeridianVector& from, double latitude,
                  double radius) {
    const double out = body.out - from.out;
    const double axis = body.north - from.north;
    const double up = out * std::cos(latitude) + axis * std::sin(latitude);
    const double north = axis * std::cos(latitude) - out * std::sin(latitude);
    const double level = std::hypot(north, body.east);
    return {RadToDeg(std::atan2(up, level)), Normalize360(RadToDeg(std::atan2(body.east, north))),
            RadToDeg(std::asin(radius / std::hypot(up, level)))};
}

/// An observer at an instant.
struct Watch {
    const Almanac& almanac;
    const Observer& observer;
    Date universal;

    double Latitude() const { return DegToRad(observer.latitude); }

    MeridianVector Towards(const CelestialPlace& body) const {
        return FromEarthCentre(body, HourAngle(almanac, observer, body, universal));
    }
    HorizonPlace FromHere(const CelestialPlace& body, double radius) const {
        return Seen(Towards(body), PlaceOf(Latitude()), Latitude(), radius);
    }
    HorizonPlace FromCentre(const CelestialPlace& body, double radius) const {
        return Seen(Towards(body), kCentre, Latitude(), radius);
    }
};

}  // namespace

HorizonPlace SunOver(const Almanac& almanac, const Observer& observer, Date universal) {
    return Watch{almanac, observer, universal}.FromHere(almanac.SunAt(universal), kSunRadius);
}

HorizonPlace MoonOver(const Almanac& almanac, const Observer& observer, Date universal) {
    return Watch{almanac, observer, universal}.FromHere(almanac.MoonAt(universal), kMoonRadius);
}

HorizonPlace SunFromCentre(const Almanac& almanac, const Observer& observer, Date universal) {
    return Watch{almanac, observer, universal}.FromCentre(almanac.SunAt(universal), kSunRadius);
}

HorizonPlace MoonFromCentre(const Almanac& almanac, const Observer& observer, Date universal) {
    return Watch{almanac, observer, universal}.FromCentre(almanac.MoonAt(universal), kMoonRadius);
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
