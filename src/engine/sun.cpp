#include "engine/sun.h"

#include <cmath>

#include "base/program_state.h"
#include "base/rounding.h"
#include "engine/angle.h"

namespace horavex {

double CosObliquity = 0.0;
double SinObliquity = 0.0;
double SunPerigeeLongitude = 0.0;
double SunAnomalyRate = 0.0;
double SunAnomalyEpoch = 0.0;
double SunCenterCoef1 = 0.0;
double SunCenterCoef2 = 0.0;
double SiderealRate = 0.0;
double SiderealEpoch = 0.0;

namespace {

const ProgramStateReset reset([] {
    CosObliquity = SinObliquity = SunPerigeeLongitude = 0.0;
    SunAnomalyRate = SunAnomalyEpoch = SunCenterCoef1 = SunCenterCoef2 = 0.0;
    SiderealRate = SiderealEpoch = 0.0;
});

// Day number of the start of the year, counted from 1900. The quarter days are rounded and not
// dropped, so that the number is one day late in every year divisible by 4 (.75 rounds up) and
// in every second year that leaves 3 (.5 goes to the even number). The sun of such a year runs a
// day ahead of the almanac; the times that people set their day by have always come out so.
double DayNumber(std::int16_t year) {
    return RoundHalfEven(365.0 * (year - 1900) + (year - 1901) / 4.0);
}

void ComputeObliquity(double T) {
    const double obliquity = DegToRad(DmsToDegrees(23, 27, 8.26) - DmsToDegrees(0, 0, 46.845) * T);
    CosObliquity = std::cos(obliquity);
    SinObliquity = std::sin(obliquity);
}

void ComputePerigee(double T) {
    const double degrees = DmsToDegrees(281, 13, 15.0) + DmsToDegrees(1, 43, 9.03) * T +
                           DmsToDegrees(0, 0, 1.63) * T * T;
    SunPerigeeLongitude = DegToRad(FloatMod(degrees, 360.0));
}

void ComputeAnomaly(double T) {
    const double perCentury = DmsToDegrees(35999, 2, 59.1);
    SunAnomalyRate = DegToRad(perCentury / 36525.0);
    const double degrees = DmsToDegrees(358, 28, 33.0) - DmsToDegrees(0, 0, 0.54) * T * T +
                           FloatMod(perCentury * T, 360.0);
    SunAnomalyEpoch = DegToRad(FloatMod(degrees, 360.0));
}

void ComputeSiderealTime(double T) {
    const double perCentury = HmsToHours(2400, 3, 4.542);
    SiderealRate = perCentury / 36525.0;
    SiderealEpoch = FloatMod(HmsToHours(6, 38, 45.836) + FloatMod(perCentury * T, 24.0), 24.0);
}

void ComputeCenter(double T) {
    const double e = 0.01675104 - 4.18e-5 * T - 1.26e-7 * T * T;  // eccentricity of the orbit
    SunCenterCoef1 = (2.0 - e * e / 4.0) * e;
    SunCenterCoef2 = 5.0 * e * e / 4.0;
}

}  // namespace

void ComputeYearConstants(std::int16_t year) {
    const double T = (DayNumber(year) - 0.5) / 36525.0;  // Julian centuries
    ComputeObliquity(T);
    ComputePerigee(T);
    ComputeAnomaly(T);
    ComputeSiderealTime(T);
    ComputeCenter(T);
}

SunPosition SunAt(double t) {
    const double M = SunAnomalyRate * t + SunAnomalyEpoch;
    const double L = SunCenterCoef1 * std::sin(M) + (SunPerigeeLongitude + M) +
                     SunCenterCoef2 * std::sin(2.0 * M);
    const double sinL = std::sin(L);
    double rightAscension = Atan2Checked(CosObliquity * sinL, std::cos(L)) * kHoursPerRadian;
    if (rightAscension < 0.0) {
        rightAscension += 24.0;
    }
    return {rightAscension, SinObliquity * sinL};
}

}  // namespace horavex
