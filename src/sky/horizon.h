#pragma once

#include "platform/almanac.h"

namespace horavex {

/// A point of the Earth at the height of the sea.
struct Observer {
    double latitude = 0.0;   // degrees, north positive
    double longitude = 0.0;  // degrees, east positive
};

/// Where a body stands over an observer's horizon, without refraction.
struct HorizonPlace {
    double altitude;      // degrees of its centre, negative below the horizon
    double bearing;       // degrees from north by east, 0 up to 360
    double semidiameter;  // degrees
};

HorizonPlace SunOver(const Almanac& almanac, const Observer& observer, Date universal);
HorizonPlace MoonOver(const Almanac& almanac, const Observer& observer, Date universal);

// The same as the centre of the Earth sees it over the observer's horizon.
HorizonPlace SunFromCentre(const Almanac& almanac, const Observer& observer, Date universal);
HorizonPlace MoonFromCentre(const Almanac& almanac, const Observer& observer, Date universal);

/// How far a body is past the meridian: degrees, west positive, from -180 up to 180.
double HourAngle(const Almanac& almanac, const Observer& observer, const CelestialPlace& body,
                 Date universal);

/// Degrees turned into the range from -180 up to, not including, 180.
double SignedDegrees(double degrees);

}  // namespace horavex
