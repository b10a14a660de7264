#include "sky/lunar_shadow.h"

#include <cmath>

#include "engine/angle.h"
#include "sky/bodies.h"
#include "sky/separation.h"

namespace horavex {

namespace {

// The air makes the Earth 1/85 larger and its flattening 1/594 smaller, as A. Danjon found; so in
// the Five Millennium Canon of Lunar Eclipses of F. Espenak and J. Meeus (2009). The older rule of
// Chauvenet, a shadow larger by 1/50, tells penumbral magnitudes 0.026 and umbral ones 0.005 more.
constexpr double kAir = 1.01;

// Degrees.
double AngleOf(double radius, double distance) {
    return RadToDeg(std::asin(radius / distance));
}

SkyPoint Opposite(const CelestialPlace& sun) {
    return {sun.rightAscension + 180.0, -sun.declination};
}

}  // namespace

MoonInShadow MoonInShadowAt(const Almanac& almanac, Date universal) {
    const CelestialPlace sun = almanac.SunAt(universal);
    const CelestialPlace moon = almanac.MoonAt(universal);
    const double air = kAir * AngleOf(kEarthRadius, moon.distance);
    const double parallax = AngleOf(kEarthRadius, sun.distance);
    const double disc = AngleOf(kSunRadius, sun.distance);
    return {Separation(Opposite(sun), {moon.rightAscension, moon.declination}),
            air + parallax + disc, air + parallax - disc, AngleOf(kMoonRadius, moon.distance)};
}

double LunarGamma(const Almanac& almanac, Date universal) {
    const CelestialPlace sun = almanac.SunAt(universal);
    const CelestialPlace moon = almanac.MoonAt(universal);
    const double away =
        DegToRad(Separation(Opposite(sun), {moon.rightAscension, moon.declination}));
    const double miss = std::sin(away) * moon.distance / kEarthRadius;
    return std::copysign(miss, moon.declination + sun.declination);
}

}  // namespace horavex
