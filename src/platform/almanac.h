#pragma once

#include "base/date.h"

namespace horavex {

/// The years that an almanac is good for: from 1 January of the first to 31 December of the last.
inline constexpr int kFirstAlmanacYear = 1900;
inline constexpr int kLastAlmanacYear = 2100;

/// Where a body of the sky is seen from the centre of the Earth: with light time and aberration,
/// against the true equator, ecliptic and equinox of the instant, without refraction.
struct CelestialPlace {
    double longitude = 0.0;       // degrees along the ecliptic, 0 up to 360
    double latitude = 0.0;        // degrees from the ecliptic, north positive
    double rightAscension = 0.0;  // degrees, 0 up to 360
    double declination = 0.0;     // degrees, north positive
    double distance = 0.0;        // kilometres from centre to centre
};

/// Where the sun and the moon stand. An instant is a date and time of the clock of Greenwich
/// (Universal Time); the almanac itself knows how far that is behind the time of the orbits.
/// Outside its years it goes on and gets worse by and by.
class Almanac {
public:
    virtual ~Almanac() = default;

    virtual CelestialPlace SunAt(Date universal) const = 0;
    virtual CelestialPlace MoonAt(Date universal) const = 0;

    /// The right ascension, degrees from 0 up to 360, that culminates in Greenwich.
    virtual double SiderealTime(Date universal) const = 0;
};

}  // namespace horavex
