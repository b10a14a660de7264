#pragma once

#include <cstdint>
#include <string>

#include "base/date.h"
#include "moon/moon_angle.h"

namespace horavex {

/// A time of day as the rise and set are told: the seconds with their fraction.
struct MoonClock {
    std::int16_t hour;    // 0 to 24; 24 is not wrapped
    std::int16_t minute;  // 0 to 59
    double second;        // most are folded into the minutes
};

struct MoonRiseSet {
    MoonClock rise;
    MoonClock set;
};

/// A place in whole degrees and minutes, north and east positive; the south and the west have both
/// parts negative. Some steps look at the whole degrees alone.
struct MoonObserver {
    std::int16_t latDeg;
    std::int16_t latMin;
    std::int16_t lonDeg;
    std::int16_t lonMin;
};

/// Sidereal times, hours 0 to 24.
struct SiderealRiseSet {
    double rise;
    double set;
};

/// Local sidereal time of rise and set of a body, without refraction. latitude: whole degrees.
/// Throws SquareRootFault for a body that does not rise or set there, DivisionByZeroFault for one
/// that just touches the horizon.
SiderealRiseSet MoonRiseSetSidereal(const ThreeParts& declination, const ThreeParts& rightAscension,
                                    std::int16_t latitude);

/// Clock times of moonrise and moonset on a day, which is taken as a day of Universal Time; zone in
/// hours. One pass without iteration, from two places of the moon twelve hours apart, with parallax
/// and half diameter: good to some minutes at middle latitudes, and whichever side of midnight the
/// true event falls on, the answer stays in the day. Throws as MoonRiseSetSidereal, near the poles
/// above all.
MoonRiseSet MoonRiseSetTimes(const CivilDate& date, const MoonObserver& observer, double zone);

/// Folds the seconds of both into the minutes, in a lopsided order that is kept: seconds of the
/// set vanish unless they are exactly 30, a rise below 30 seconds keeps its own and clears the
/// set's. A full hour of minutes is carried on; hours are not.
void FoldSeconds(MoonRiseSet& times);

/// Moves a time by the zone, by one day at most; through six decimals, which may lose a minute
/// (10:08 gives 10:07). The seconds stay.
void MoveByZone(MoonClock& time, double zone);

/// One hour more on both, without a wrap at 24.
void AddDaylightHour(MoonRiseSet& times);

/// "Moon Rise at:14:30:10.98" and "Moon Set at:2:52:0", nothing padded.
std::string MoonRiseText(const MoonRiseSet& times);
std::string MoonSetText(const MoonRiseSet& times);

/// What both say where there is no rise or set, or no input that makes sense.
std::string MoonErrorText();

}  // namespace horavex
