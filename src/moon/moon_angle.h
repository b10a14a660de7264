#pragma once

#include <cstdint>

#include "base/date.h"

namespace horavex {

// Angles and times in three parts, and the sidereal clock, as the rise and set of the moon take
// them: after P. Duffett-Smith, Practical Astronomy with your Calculator, each intermediate rounded
// (ties to even) where these comments say so.

/// Degrees or hours with minutes and seconds. The sign of the whole stands on all three parts.
struct ThreeParts {
    std::int16_t whole = 0;
    std::int16_t minutes = 0;
    double seconds = 0.0;
};

/// The pi of this theory, to eight figures: 4.6e-8 above pi, which is 0.02 seconds of arc in a
/// turn.
inline constexpr double kShortPi = 3.1415927;
inline constexpr double kRadiansPerDegree = kShortPi / 180.0;
inline constexpr double kDegreesPerRadian = 180.0 / kShortPi;

/// Sine, cosine and tangent of degrees, and the inverse functions in degrees. The inverse ones
/// throw as ArcSin and ArcCos do; ArcTanDegrees throws DivisionByZeroFault for an x of 0.
double SinDegrees(double degrees);
double CosDegrees(double degrees);
double TanDegrees(double degrees);
double ArcSinDegrees(double x);
double ArcCosDegrees(double x);
double ArcTanDegrees(double y, double x);

/// a / b. Throws DivisionByZeroFault for a b of 0.
double Quotient(double a, double b);

/// Rounded to the six places that most intermediates have.
double RoundToSix(double value);

/// The three parts as one number, rounded to six places.
double ClockToDecimal(std::int16_t whole, std::int16_t minutes, double seconds);
double ClockToDecimal(const ThreeParts& parts);

/// Takes a number apart. The minutes are cut, the seconds rounded to six places.
ThreeParts DecimalToClock(double value);

/// The same with the seconds rounded to that many places.
ThreeParts DecimalToClock(double value, int secondPlaces);

/// The integer part of a number, found in its decimal text of 15 digits. A value that prints
/// rounded up to a further digit (the one below 10) gives a wrong part, and so do negative powers
/// of ten. Throws OverflowFault beyond 16 bits.
std::int16_t TextIntegerPart(double value);

/// While the value is above high, high is subtracted; then while it is below low, high is added.
double WrapRange(double value, double low, double high);

/// Hours brought to 0 to 24; exactly 24 stays.
double WrapHours(double hours);

/// Julian day of a date; day with its fraction. The calendar turns on 15 October 1582.
double CivilToJulian(int year, int month, double day);

/// Whole days from 1 January 1990 to a Gregorian date, plus 1.
double DaysSince1990(int day, int month, int year);

/// Sidereal time at Greenwich at 0 hours of the day, seconds to two places.
ThreeParts GreenwichSiderealAtMidnight(const CivilDate& date);

/// Universal time of a sidereal time at Greenwich on a day, seconds to two places.
ThreeParts SiderealToUniversal(const CivilDate& date, const ThreeParts& sidereal);

/// Sidereal time at Greenwich of a local one, seconds to two places. longitude: degrees, east
/// positive.
ThreeParts LocalToGreenwichSidereal(const ThreeParts& local, double longitude);

/// 1 to 4, or 0 where either is exactly 0.
int QuadrantOfXY(double x, double y);

/// Quadrant of degrees from -180 to 360, 1 to 4; 0 on the axes and elsewhere.
int QuadrantOfAngle(double degrees);

/// arctan(y / x) in degrees, to six places, moved into the quadrant of (x, y) by whole quarters. A
/// y of 0 is moved by none. Throws DivisionByZeroFault for an x of 0.
double AngleInQuadrant(double y, double x);

}  // namespace horavex
