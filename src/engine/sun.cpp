#include "engine/sun.h"

#include <cmath>

#include "base/date.h"
#include "base/rounding.h"
#include "engine/angle.h"

namespace horavex {

namespace {

// Days from 1900 January 0 to the start of the year. The quarter days are rounded and not dropped,
// so that the number is one day late in every year divisible by 4 (.75 rounds up) and in every
// second year that leaves 3 (.5 goes to the even number). The sun of such a year is that of the
// next day: transit differs by up to half a minute, sunset at 50 degrees by two minutes around an
// equinox. Kept, with YearConstantsOf.DayNumberIsRoundedToTheNearestEven: another rounding would
// put the limits that stop a year, and data/angles.csv with them, on other days.
double RoundedDayNumber(std::int16_t year) {
    return RoundHalfEven(365.0 * (year - 1900) + (year - 1901) / 4.0);
}

/// The same of the calendar.
double CalendarDayNumber(std::int16_t year) {
    return DateSerial(year, 1, 1) - DateSerial(1900, 1, 1);
}

// Newcomb's obliquity without its terms in T squared (-0.0059") and T cubed (0.00181").
void ComputeObliquity(double T, YearConstants& constants) {
    const double obliquity = DegToRad(DmsToDegrees(23, 27, 8.26) - DmsToDegrees(0, 0, 46.845) * T);
    constants.CosObliquity = std::cos(obliquity);
    constants.SinObliquity = std::sin(obliquity);
}

// Newcomb's longitude of the perigee, 281 13 15.00 + 6189.03" T + 1.63" T squared, without 0.012"
// T cubed.
void ComputePerigee(double T, YearConstants& constants) {
    const double degrees = DmsToDegrees(281, 13, 15.0) + DmsToDegrees(1, 43, 9.03) * T +
                           DmsToDegrees(0, 0, 1.63) * T * T;
    constants.SunPerigeeLongitude = DegToRad(FloatMod(degrees, 360.0));
}

// Newcomb's mean anomaly, 358 28 33.04 + 129596579.10" T - 0.54" T squared, without -0.012" T
// cubed; the first term is carried to a tenth of a second.
void ComputeAnomaly(double T, YearConstants& constants) {
    const double perCentury = DmsToDegrees(35999, 2, 59.1);
    constants.SunAnomalyRate = DegToRad(perCentury / 36525.0);
    const double degrees = DmsToDegrees(358, 28, 33.0) - DmsToDegrees(0, 0, 0.54) * T * T +
                           FloatMod(perCentury * T, 360.0);
    constants.SunAnomalyEpoch = DegToRad(FloatMod(degrees, 360.0));
}

// Newcomb's sidereal time of midnight, 6 38 45.836 + 8640184.542 s T, without 0.0929 s T squared.
void ComputeSiderealTime(double T, YearConstants& constants) {
    const double perCentury = HmsToHours(2400, 3, 4.542);
    constants.SiderealRate = perCentury / 36525.0;
    constants.SiderealEpoch =
        FloatMod(HmsToHours(6, 38, 45.836) + FloatMod(perCentury * T, 24.0), 24.0);
}

// Equation of the centre, (2e - e^3/4) sin M + 5/4 e^2 sin 2M; the term in sin 3M, a second of arc,
// is left out.
void ComputeCenter(double T, YearConstants& constants) {
    const double e = 0.01675104 - 4.18e-5 * T - 1.26e-7 * T * T;  // eccentricity, Newcomb
    constants.SunCenterCoef1 = (2.0 - e * e / 4.0) * e;
    constants.SunCenterCoef2 = 5.0 * e * e / 4.0;
}

}  // namespace

YearConstants YearConstantsOf(std::int16_t year, YearStart start) {
    const double dayNumber =
        start == YearStart::kCalendar ? CalendarDayNumber(year) : RoundedDayNumber(year);
    const double T = (dayNumber - 0.5) / 36525.0;  // Julian centuries
    YearConstants constants;
    ComputeObliquity(T, constants);
    ComputePerigee(T, constants);
    ComputeAnomaly(T, constants);
    ComputeSiderealTime(T, constants);
    ComputeCenter(T, constants);
    return constants;
}

SunPosition SunAt(const YearConstants& constants, double t) {
    const double M = constants.SunAnomalyRate * t + constants.SunAnomalyEpoch;
    const double L = constants.SunCenterCoef1 * std::sin(M) + (constants.SunPerigeeLongitude + M) +
                     constants.SunCenterCoef2 * std::sin(2.0 * M);
    const double sinL = std::sin(L);
    double rightAscension =
        Atan2Checked(constants.CosObliquity * sinL, std::cos(L)) * kHoursPerRadian;
    if (rightAscension < 0.0) {
        rightAscension += 24.0;
    }
    return {rightAscension, constants.SinObliquity * sinL};
}

}  // namespace horavex
