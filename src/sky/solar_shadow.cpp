#include "sky/solar_shadow.h"

#include <cmath>

#include "engine/angle.h"
#include "sky/bodies.h"

namespace horavex {

namespace {

/// Kilometres from the Earth's centre: toward the equinox, 90 degrees east of it on the equator,
/// and north.
struct Vector {
    double x;
    double y;
    double z;
};

Vector operator-(const Vector& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

Vector operator*(double factor, const Vector& v) {
    return {factor * v.x, factor * v.y, factor * v.z};
}

double Dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

double Length(const Vector& v) {
    return std::sqrt(Dot(v, v));
}

Vector VectorOf(const CelestialPlace& place) {
    const double along = DegToRad(place.rightAscension);
    const double above = DegToRad(place.declination);
    const double flat = place.distance * std::cos(above);
    return {flat * std::cos(along), flat * std::sin(along), place.distance * std::sin(above)};
}

/// Makes the Earth a sphere, or the sphere the Earth again; straight lines stay straight.
Vector Stretched(const Vector& v) {
    return {v.x, v.y, v.z / (1.0 - kFlattening)};
}
Vector Flattened(const Vector& v) {
    return {v.x, v.y, v.z * (1.0 - kFlattening)};
}

/// A line from a point in a direction of length 1.
struct Line {
    Vector point;
    Vector direction;

    Vector NearestToCentre() const { return point - Dot(point, direction) * direction; }
};

Line LineThrough(const Vector& from, const Vector& to) {
    const Vector way = to - from;
    return {to, (1.0 / Length(way)) * way};
}

/// Where a line first meets the sphere, or the sphere's point that is nearest to it.
Vector MeetingPoint(const Line& line) {
    const Vector nearest = line.NearestToCentre();
    const double distance = Length(nearest);
    if (distance >= kEarthRadius) {
        return (kEarthRadius / distance) * nearest;
    }
    const double back = std::sqrt(kEarthRadius * kEarthRadius - distance * distance);
    return nearest - back * line.direction;
}

/// The observer at a point of the Earth's surface.
Observer ObserverAt(const Vector& point, double siderealTime) {
    const double polar = (1.0 - kFlattening) * (1.0 - kFlattening);
    const double latitude = std::atan2(point.z, polar * std::hypot(point.x, point.y));
    const double rightAscension = std::atan2(point.y, point.x);
    return {RadToDeg(latitude), SignedDegrees(RadToDeg(rightAscension) - siderealTime)};
}

}  // namespace

ShadowAxis ShadowAxisAt(const Almanac& almanac, Date universal) {
    const Vector sun = VectorOf(almanac.SunAt(universal));
    const Vector moon = VectorOf(almanac.MoonAt(universal));
    const Vector miss = LineThrough(sun, moon).NearestToCentre();
    const Line axis = LineThrough(Stretched(sun), Stretched(moon));
    return {std::copysign(Length(miss) / kEarthRadius, miss.z),
            Length(axis.NearestToCentre()) / kEarthRadius - 1.0,
            ObserverAt(Flattened(MeetingPoint(axis)), almanac.SiderealTime(universal))};
}

}  // namespace horavex
