#pragma once

#include "base/date.h"
#include "moon/moon_angle.h"

namespace horavex {

// The moon by the low-precision lunar theory of P. Duffett-Smith, Practical Astronomy with your
// Calculator, epoch 1990 January 0.0: evection, annual equation, equation of the centre and
// variation. Accuracy: about a fifth of a degree. Smaller terms and nutation are left out.

/// Right ascension in hours, declination in degrees; each 0 or more minutes and seconds under a
/// floored whole part, so that -0.5 degrees is -1 degree and 30 minutes.
struct EquatorialParts {
    ThreeParts rightAscension;
    ThreeParts declination;
};

/// longitude and latitude: of the ecliptic. Seconds of the answer have two places. Throws
/// DivisionByZeroFault at a longitude of exactly 90 or 270 degrees.
EquatorialParts EclipticToEquatorial(const ThreeParts& longitude, const ThreeParts& latitude);

/// Where the moon stands, degrees to six places.
struct MoonPlace {
    double longitude;         // of the ecliptic, not brought onto one turn
    double node;              // corrected longitude of the ascending node
    double orbitLongitude;    // true longitude in the orbit
    double anomaly;           // corrected mean anomaly
    double latitude;          // of the ecliptic
    double rightAscension;    // hours
    double declination;       // degrees
    double equationOfCentre;  // degrees
    double sunLongitude;      // degrees, of the same moment
};

/// The moon at an hour of Universal Time of a Gregorian day. hour: with its fraction. Throws
/// DivisionByZeroFault where an angle of the theory falls on an axis.
MoonPlace MoonPosition(double hour, const CivilDate& date);

/// Angular diameter and horizontal parallax, degrees.
struct MoonSize {
    ThreeParts diameter;
    ThreeParts parallax;
};

/// Both at 0 hours of Universal Time.
MoonSize MoonSizeAndParallax(const CivilDate& date);

}  // namespace horavex
