#pragma once

#include <cstdint>

namespace horavex {

// The sun by the mean elements of S. Newcomb, Tables of the Motion of the Earth on its Axis and
// around the Sun (Astronomical Papers of the American Ephemeris 6, 1898), to the powers of T that
// stand in sun.cpp; the equation of the centre has its two first terms in the eccentricity. Epoch:
// 1900 January 0, Greenwich mean noon; T counts Julian centuries of 36525 days from it. Left out
// are the planets and the Moon (up to 30 seconds of arc), aberration (20) and nutation (17).
//
// Against PyEphem 4.1.4 at noon of the years 1950 to 2050 the right ascension stays within 6
// seconds of time, the declination within 0.4 minutes of arc, the hour of transit within 5 seconds;
// 1900 to 2100 are no worse. In the years whose day number is one late (RoundedDayNumber, sun.cpp)
// the sun is that of the next day: up to 270 seconds, 24.1 minutes of arc and 32 seconds. The
// calendar's own day number gives all years the first figures; an option takes it.

/// What the series needs of one calendar year.
struct YearConstants {
    double CosObliquity = 0.0;         // cosine of the obliquity of the ecliptic
    double SinObliquity = 0.0;         // sine of the same
    double SunPerigeeLongitude = 0.0;  // radians, longitude of perigee at the start of the year
    double SunAnomalyRate = 0.0;       // radians per day, motion in mean anomaly
    double SunAnomalyEpoch = 0.0;      // radians, mean anomaly at the start of the year
    double SunCenterCoef1 = 0.0;  // radians, coefficient of sin M in the equation of the centre
    double SunCenterCoef2 = 0.0;  // radians, coefficient of sin 2M
    double SiderealRate = 0.0;    // hours per day, gain of sidereal time
    double SiderealEpoch = 0.0;   // hours, sidereal time at the start of the year

    bool operator==(const YearConstants&) const = default;
};

/// Where the series has a year begin.
enum class YearStart {
    kRounded,   // at a day number that is one late in some years
    kCalendar,  // on the first of January
};

/// The constants of a Gregorian year.
YearConstants YearConstantsOf(std::int16_t year, YearStart start = YearStart::kRounded);

/// Those of the program's table. ComputeYearConstants alone writes them.
extern YearConstants CurrentYearConstants;
void ComputeYearConstants(std::int16_t year, YearStart start = YearStart::kRounded);

struct SunPosition {
    double rightAscension;  // hours, 0 to 24
    double sinDeclination;
};

/// The sun at a moment of the year of the constants. t counts days: 1 is the start of the first
/// of January at Universal Time 0, the fraction is Universal Time.
SunPosition SunAt(const YearConstants& constants, double t);

}  // namespace horavex
